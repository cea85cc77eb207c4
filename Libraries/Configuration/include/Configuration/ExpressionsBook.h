#pragma once

#include <map>
#include <string>
#include <utility>

namespace velmar {

/// Named texts or conditions, which may refer to variables. In the file a dictionary. What its values use is
/// checked with all else that uses variables, when the whole file is decoded; see VariablesRecords.
template <class T>
class ExpressionsBook {
public:
    using Models = std::map<std::string, T>;

    ExpressionsBook() = default;
    explicit ExpressionsBook(Models models) : models_(std::move(models)) {}

    /// The values by name, as the file has them.
    [[nodiscard]] const Models &models() const { return models_; }

private:
    Models models_;
};

} // namespace velmar
