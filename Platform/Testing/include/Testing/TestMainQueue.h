#pragma once

#include <Dispatch/MainThreadQueue.h>

namespace velmar {

/// A fake main queue; the test runs its functions.
class TestMainQueue final : public MainThreadQueue {};

} // namespace velmar
