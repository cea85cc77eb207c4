#pragma once

#include <map>
#include <string>
#include <utility>

namespace velmar {

/// Named texts or conditions, which may refer to variables; a dictionary in the file. The variables that they
/// use are checked after the whole file is decoded.
template <class T>
class ExpressionsBook {
public:
    using Models = std::map<std::string, T>;

    ExpressionsBook() = default;
    explicit ExpressionsBook(Models models) : models_(std::move(models)) {}

    /// Returns the values by name, with variables not substituted.
    [[nodiscard]] const Models &models() const { return models_; }

private:
    Models models_;
};

} // namespace velmar
