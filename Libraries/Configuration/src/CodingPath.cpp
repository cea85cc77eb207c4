#include <Configuration/CodingPath.h>

namespace velmar {

std::string CodingPath::text() const {
    std::string text;
    appendTo(text);
    return text;
}

void CodingPath::appendTo(std::string &text) const {
    if (parent_ == nullptr) {
        return;
    }
    parent_->appendTo(text); // No deeper than a property list may be.
    if (!text.empty()) {
        text += '.';
    }
    if (isIndex_) {
        text += std::to_string(index_);
    } else {
        text += key_;
    }
}

std::string_view CodingPath::lastKey() const {
    const CodingPath *part = this;
    while (part->isIndex_) {
        part = part->parent_;
    }
    return part->key_;
}

} // namespace velmar
