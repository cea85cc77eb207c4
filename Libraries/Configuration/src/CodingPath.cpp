#include <Configuration/CodingPath.h>

#include <vector>

namespace velmar {

std::string CodingPath::text() const {
    std::vector<const CodingPath *> parts;
    for (const CodingPath *part = this; part->parent_ != nullptr; part = part->parent_) {
        parts.push_back(part);
    }
    std::string text;
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        if (!text.empty()) {
            text += '.';
        }
        if ((*part)->isIndex_) {
            text += std::to_string((*part)->index_);
        } else {
            text += (*part)->key_;
        }
    }
    return text;
}

std::string_view CodingPath::lastKey() const {
    const CodingPath *part = this;
    while (part->isIndex_) {
        part = part->parent_;
    }
    return part->key_;
}

} // namespace velmar
