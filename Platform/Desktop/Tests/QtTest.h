#pragma once

#include <QApplication>

#include <gtest/gtest.h>

#include <memory>

namespace velmar {

/// A test that needs the toolkit, whose application lives as long as its group of tests.
class QtTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static int argumentCount = 1;
        static char name[] = "test";
        static char *arguments[] = {name, nullptr};
        application_ = std::make_unique<QApplication>(argumentCount, arguments);
        QApplication::setQuitOnLastWindowClosed(false);
    }
    static void TearDownTestSuite() { application_.reset(); }

private:
    static inline std::unique_ptr<QApplication> application_;
};

} // namespace velmar
