#pragma once

#include <Configuration/KeyWrapper.h>
#include <Configuration/PopulatableBody.h>

#include <optional>
#include <string>

namespace velmar {

/// Holds the body of a request and its place in the file, for errors found long after decoding. An inherited
/// body keeps the place in the parent.
class BodyKeyWrapper : public KeyWrapper<std::optional<BodyItem>> {
    using Base = KeyWrapper<std::optional<BodyItem>>;

public:
    using Base::Base;

    /// Returns the path as CodingPath::text(); empty if the file doesn't give the body.
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
