#pragma once

#include <Configuration/Decodable.h>

#include <map>
#include <optional>
#include <string>

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

template <class T>
struct Decodable<ExpressionsBook<T>> {
    using Storage = Decodable<std::map<std::string, T>>;
    static ExpressionsBook<T> decode(const Decoding &decoding) {
        return ExpressionsBook<T>(Storage::decode(decoding));
    }
    static std::optional<PropertyList> encode(const ExpressionsBook<T> &book) {
        return Storage::encode(book.models());
    }
    static std::string plistType() { return Storage::plistType(); }
    static ValueDescription describe(Descriptions &items) { return Storage::describe(items); }
};

} // namespace velmar
