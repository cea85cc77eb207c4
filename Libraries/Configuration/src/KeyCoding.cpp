#include <Configuration/KeyCoding.h>

namespace velmar {

template struct KeyCoding<KeyWrapper<bool>>;
template struct KeyCoding<KeyWrapper<double>>;
template struct KeyCoding<KeyWrapper<std::optional<double>>>;
template struct KeyCoding<KeyWrapper<std::int64_t>>;
template struct KeyCoding<KeyWrapper<std::optional<std::int64_t>>>;
template struct KeyCoding<KeyWrapper<std::string>>;
template struct KeyCoding<KeyWrapper<std::optional<std::string>>>;
template struct KeyCoding<KeyWrapper<std::vector<std::string>>>;
template struct KeyCoding<VariableKeyWrapper<std::string>>;
template struct KeyCoding<VariableKeyWrapper<std::optional<std::string>>>;

} // namespace velmar
