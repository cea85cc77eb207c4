#pragma once

#include <Configuration/KeyWrapper.h>
#include <Configuration/PopulatableBody.h>

#include <optional>
#include <string>

namespace velmar {

/// Holds the body of a request, and where it stands in the file: a body that cannot be sent is told by its
/// place, long after decoding. A body that is inherited stands where the parent has it.
class BodyKeyWrapper : public KeyWrapper<std::optional<BodyItem>> {
    using Base = KeyWrapper<std::optional<BodyItem>>;

public:
    using Base::Base;

    /// As CodingPath::text(); empty for a body that the file doesn't give.
    [[nodiscard]] const std::string &codingPath() const { return codingPath_; }

    void inherit(const BodyKeyWrapper &parent) {
        Base::inherit(parent);
        codingPath_ = parent.codingPath_;
    }

private:
    friend struct KeyCoding<BodyKeyWrapper>;

    std::string codingPath_;
};

} // namespace velmar
