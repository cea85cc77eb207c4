#pragma once

#include <Base/FactoryTable.h>
#include <Configuration/ConfigurationEnum.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace velmar {

/// Fails unless each type of the item occurs exactly once in `registrations` and `notBuilt` together.
template <class Item, class Factory>
void expectEachTypeOnce(const FactoryTable<Item, Factory> &table) {
    std::vector<std::string_view> named;
    for (const auto &registration : table.registrations) {
        EXPECT_NE(registration.make, nullptr) << rawString(registration.type);
        named.push_back(rawString(registration.type));
    }
    for (const auto type : table.notBuilt) {
        named.push_back(rawString(type));
    }
    const auto textsOf = []<class... Types>(std::type_identity<std::variant<Types...>> /*value*/) {
        return std::vector{rawString(Types::typeIdentifier)...};
    };
    EXPECT_THAT(named,
                testing::UnorderedElementsAreArray(textsOf(std::type_identity<decltype(Item::value)>())));
}

} // namespace velmar
