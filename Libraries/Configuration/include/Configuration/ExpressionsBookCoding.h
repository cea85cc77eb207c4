#pragma once

#include <Configuration/Decodable.h>
#include <Configuration/ExpressionsBook.h>

namespace velmar {

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
