#pragma once

#include <Dispatch/MainThreadQueue.h>

namespace velmar {

/// A main queue that runs its functions when the test says so.
class TestMainQueue final : public MainThreadQueue {};

} // namespace velmar
