#pragma once

#include <nlohmann/json_fwd.hpp>

namespace velmar {

class PropertyList;

/// Returns the JSON of the same structure. The value must hold no dates and no data, which JSON lacks.
[[nodiscard]] nlohmann::ordered_json jsonOf(const PropertyList &value);

} // namespace velmar
