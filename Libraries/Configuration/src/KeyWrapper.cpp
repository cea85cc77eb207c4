#include <Configuration/KeyWrapper.h>

namespace velmar {

KeyDeclaration::KeyDeclaration(ConfigCodingKey key, const Requirement &need,
                               std::optional<ClosedRange> bounds, std::optional<ArrayCodingStrategy> arrays)
    : name(key), requirement(need), range(bounds), strategy(arrays) {}

KeyDeclaration::~KeyDeclaration() = default;

template class KeyHolderOf<bool>;
template class KeyHolderOf<std::int64_t>;
template class KeyHolderOf<double>;
template class KeyHolderOf<std::optional<std::int64_t>>;
template class KeyHolderOf<std::optional<double>>;
template class KeyHolderOf<SharedValuePointer>;

} // namespace velmar
