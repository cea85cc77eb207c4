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
    parent_->appendTo(text); // The property list limits the depth.
    if (!text.empty()) {
        text += '.';
    }
    if (isIndex_) {
        text += std::to_string(index_);
    } else {
        text += key_;
    }
}

std::size_t CodingPath::length() const {
    if (parent_ == nullptr) {
        return 0;
    }
    const std::size_t before = parent_->length();
    std::size_t own = key_.size();
    if (isIndex_) {
        for (std::size_t rest = index_; own == 0 || rest > 0; rest /= 10) {
            ++own;
        }
    }
    return before + (before > 0 ? 1 : 0) + own;
}

std::string_view CodingPath::lastKey() const {
    const CodingPath *part = this;
    while (part->isIndex_) {
        part = part->parent_;
    }
    return part->key_;
}

} // namespace velmar
