#pragma once

#include <Foundation/LocalizedError.h>

#include <fmt/format.h>

#include <string>

namespace velmar {

/// Errors in the references of models to their parents.
namespace BookErrors {

struct OwnDefinition {
    std::string name; ///< "Undefined" for a model without a name, here and below.
    std::string value;
    [[nodiscard]] std::string errorDescription() const {
        return fmt::format("Variable '{}' ({}) used within its own initial value", name, value);
    }
};
struct CircularReference {
    std::string type;
    std::string name;
    [[nodiscard]] std::string errorDescription() const {
        return fmt::format("Circular reference for {}s involving {}", type, name);
    }
};
struct UndefinedParentModel {
    std::string name;
    std::string parent;
    [[nodiscard]] std::string errorDescription() const {
        return fmt::format("{} has an undefined parent {}", name, parent);
    }
};
struct ParentModelNotApplied {
    std::string type;
    [[nodiscard]] std::string errorDescription() const {
        return fmt::format(
            "{} model doesn't change its isParentModelApplied property when applying parent model", type);
    }
};

} // namespace BookErrors

class BookError final
    : public ErrorOfCases<BookErrors::OwnDefinition, BookErrors::CircularReference,
                          BookErrors::UndefinedParentModel, BookErrors::ParentModelNotApplied> {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar
