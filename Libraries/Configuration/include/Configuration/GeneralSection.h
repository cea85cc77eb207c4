#pragma once

#include <Configuration/KeyWrapper.h>
#include <Configuration/Placeholders.h>

#include <string>
#include <string_view>

namespace velmar {

template <class T>
class ExpressionsBook;

/// The variables of the file and their initial values.
struct GeneralSection {
    static constexpr std::string_view typeName = "GeneralSection";

    using Placeholders = velmar::Placeholders;

    KeyWrapper<ExpressionsBook<std::string>> _variables{"Variables", required};
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
