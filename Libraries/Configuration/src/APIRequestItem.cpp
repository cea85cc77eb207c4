#include <Configuration/APIRequestItem.h>

#include <Configuration/BodyItemCoding.h>
#include <Configuration/ItemCoding.h>

namespace velmar {

template <>
struct KeyCoding<BodyKeyWrapper> : KeyCoding<KeyWrapper<std::optional<BodyItem>>> {
    static void decode(BodyKeyWrapper &key, const PropertyListValue &value, const CodingPath &itemPath,
                       DecodingContext &context) {
        KeyCoding<KeyWrapper<std::optional<BodyItem>>>::decode(key, value, itemPath, context);
        key.codingPath_ = CodingPath(itemPath, key.name().stringValue).text();
    }
};

template struct ItemCoding<APIRequestItem>;

} // namespace velmar
