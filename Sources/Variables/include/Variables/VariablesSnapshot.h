#pragma once

#include <Variables/CopyOnWrite.h>
#include <expressions/Variables.h>

#include <cstdint>
#include <utility>

namespace velmar {

/// Variables with the version of their state. Every change of a variable gives a new version, which is unique
/// within the process.
struct NumberedVariables {
    Variables variables;
    std::uint64_t version = 0;
};

/// An immutable snapshot of the variables, used like a pointer. Taking, copying and destroying one changes a
/// reference count only. While a snapshot exists, the next write to the store copies all variables, so don't
/// keep it longer than needed. Not thread-safe: each thread uses its own copy.
class VariablesSnapshot {
public:
    explicit VariablesSnapshot(CopyOnWrite<NumberedVariables> state) noexcept : state_(std::move(state)) {}

    [[nodiscard]] const Variables &operator*() const noexcept { return state_->variables; }
    [[nodiscard]] const Variables *operator->() const noexcept { return &state_->variables; }

    /// Returns the version. Two snapshots have the same version only if they show the same state.
    [[nodiscard]] std::uint64_t version() const noexcept { return state_->version; }

private:
    CopyOnWrite<NumberedVariables> state_;
};

} // namespace velmar
