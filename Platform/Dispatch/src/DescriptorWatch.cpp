#include <Dispatch/DescriptorWatch.h>

#include <Dispatch/UncaughtHandler.h>

#include "DispatchPool.h"

#include <asio/posix/stream_descriptor.hpp>

#include <system_error>
#include <utility>

#include <unistd.h>

namespace velmar {

struct DescriptorWatch::State {
    State(int number, std::string name)
        : label(std::move(name)), descriptor(DispatchPool::shared().executor()) {
        std::error_code error;
        descriptor.assign(number, error);
        if (error) {
            close(number);
            throw std::system_error(error);
        }
    }

    std::string label;
    asio::posix::stream_descriptor descriptor;
};

DescriptorWatch::DescriptorWatch(int descriptor, std::string label)
    : state_(std::make_shared<State>(descriptor, std::move(label))) {}

int DescriptorWatch::number() const {
    return state_->descriptor.native_handle();
}

void DescriptorWatch::whenReadable(std::function<void()> function) const {
    auto told = [state = state_, work = std::move(function)](const std::error_code & /*none*/) mutable {
        static_cast<void>(DispatchPool::shared().run([&] {
            runReportingUncaught(state->label, [&] {
                work();
                work = nullptr; // Releases the captures as part of the run.
            });
        }));
    };
    state_->descriptor.async_wait(asio::posix::stream_descriptor::wait_read, std::move(told));
}

} // namespace velmar
