#pragma once

#include <QApplication>

#include <gtest/gtest.h>

#include <memory>

namespace velmar {

/// Fixture that adds an application of the toolkit to another fixture. The application exists for the whole
/// test suite. `Application` must be constructible from the arguments of main.
template <class Fixture = testing::Test, class Application = QApplication>
class QtTest : public Fixture {
protected:
    static void SetUpTestSuite() {
        static int argumentCount = 1;
        static char name[] = "test";
        static char *arguments[] = {name, nullptr};
        application_ = std::make_unique<Application>(argumentCount, arguments);
        QApplication::setQuitOnLastWindowClosed(false);
    }
    static void TearDownTestSuite() { application_.reset(); }

    static Application &application() { return *application_; }

private:
    static inline std::unique_ptr<Application> application_;
};

} // namespace velmar
