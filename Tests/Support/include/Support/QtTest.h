#pragma once

#include <QApplication>

#include <gtest/gtest.h>

#include <memory>

namespace velmar {

/// A test over another fixture with the toolkit's application, or what makes it, which lasts for the group of
/// tests.
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
