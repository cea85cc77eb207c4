#pragma once

#include <Configuration/ComponentItem.h>
#include <Desktop/DesktopAppearance.h>
#include <Support/QtTest.h>
#include <Support/TestServices.h>
#include <Views/CustomViews/StyleConfigurableTextView.h>
#include <Views/CustomViews/Theme.h>

#include <map>
#include <string>

namespace velmar {

/// Extends a fixture by the application and its theme, without animations, and a main queue that the test
/// runs.
template <class Fixture = testing::Test>
class ViewTest : public QtTest<Fixture> {
protected:
    static void SetUpTestSuite() {
        QtTest<Fixture>::SetUpTestSuite();
        appearance_ = std::make_unique<DesktopAppearance>();
        Theme::install(*appearance_);
    }
    static void TearDownTestSuite() {
        QtTest<Fixture>::TearDownTestSuite();
        appearance_.reset();
    }

    ViewTest() { appearance().setAnimated(false); }

    static DesktopAppearance &appearance() { return *appearance_; }

    /// Processes the main queue and all pending events, including due timers.
    void settle() {
        queue.runUntilEmpty();
        QCoreApplication::processEvents();
    }

    static ComponentItem text(const std::string &content, const std::string &condition = {}) {
        ComponentItem::Text item;
        item._text.set(content);
        if (!condition.empty()) {
            item.common._condition.set(Expression(condition));
        }
        return {item};
    }

    /// Returns the visible texts by their top positions in `root`.
    static std::multimap<int, QString> placedTexts(const QWidget &root) {
        std::multimap<int, QString> texts;
        for (const auto *view : root.findChildren<StyleConfigurableTextView *>()) {
            if (view->isVisible()) {
                texts.emplace(view->mapTo(&root, QPoint()).y(), view->text());
            }
        }
        return texts;
    }
    static QStringList shownTexts(const QWidget &root) {
        QStringList list;
        for (const auto &[top, content] : placedTexts(root)) {
            list.append(content);
        }
        return list;
    }

    TestServices services;
    TestMainQueue &queue = services.mainQueue;

private:
    static inline std::unique_ptr<DesktopAppearance> appearance_;
};

} // namespace velmar
