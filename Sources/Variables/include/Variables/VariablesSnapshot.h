#pragma once

#include <Variables/CopyOnWrite.h>
#include <expressions/Variables.h>

#include <cstdint>
#include <utility>

namespace velmar {

/// Variables with the number of their state: every change of any variable gives a new one, which no other
/// state of the process has.
struct NumberedVariables {
    Variables variables;
    std::uint64_t version = 0;
};

/// The variables of one moment, used like a pointer; what it shows never changes. Taking, copying and
/// destroying one costs a count. While one is held the next write to the store copies all variables, so it
/// is not kept longer than the work that needs one view of them. One thread at a time, each its own copy.
class VariablesSnapshot {
public:
    explicit VariablesSnapshot(CopyOnWrite<NumberedVariables> state) noexcept : state_(std::move(state)) {}

    [[nodiscard]] const Variables &operator*() const noexcept { return state_->variables; }
    [[nodiscard]] const Variables *operator->() const noexcept { return &state_->variables; }

    /// Equal for two snapshots of one state only.
    [[nodiscard]] std::uint64_t version() const noexcept { return state_->version; }

private:
    CopyOnWrite<NumberedVariables> state_;
};

} // namespace velmar
