#include "ThemedApplication.h"

#include <Views/Content/Components/Base.h>
#include <Views/Content/Containers/ContainerViewController.h>
#include <Views/CustomViews/StyleConfigurableTextView.h>

#include <Configuration/Configuration.h>
#include <Managers/ConditionEvaluator.h>
#include <Managers/ContentManager.h>
#include <Managers/PopulatePlugin.h>
#include <Support/RecordedLog.h>
#include <Testing/TestMainQueue.h>

#include <QScrollArea>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace velmar {
namespace {

/// A container on show, of texts of which some have conditions, over a store of its own.
class Container : public testing::Test, protected ThemedApplication {
protected:
    static void SetUpTestSuite() { begin(); }
    static void TearDownTestSuite() { end(); }
    ~Container() override { appearance().setAnimated(false); }

    static ComponentItem text(const std::string &content, const std::string &condition = {}) {
        ComponentItem::Text item;
        item._text.set(content);
        if (!condition.empty()) {
            item.common._condition.set(Expression(condition));
        }
        return {item};
    }

    void show(const std::vector<ComponentItem> &components) {
        ContainerItem item;
        item._components.set(components);
        view = std::make_unique<ContainerViewController>(item, ContainerViewController::Kind::inSoleSlide,
                                                         std::nullopt, queue, nullptr);
        view->resize(500, 400);
        view->viewWillAppear();
        view->show();
        settle();
    }

    void set(std::string_view name, std::string value) {
        manager->updateVariable(name, std::move(value), false);
    }

    void settle() {
        queue.runUntilEmpty();
        QCoreApplication::processEvents();
    }

    /// Lets animations run until the texts on show, from the top down, are these.
    ::testing::AssertionResult shows(const QStringList &texts) {
        settle();
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (shownTexts() != texts && std::chrono::steady_clock::now() < deadline) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1000);
        }
        return shownTexts() == texts ? ::testing::AssertionSuccess()
                                     : ::testing::AssertionFailure() << shownTexts().join(", ").toStdString();
    }

    QStringList shownTexts() const {
        std::map<int, QString> texts;
        for (const auto *text : view->findChildren<StyleConfigurableTextView *>()) {
            if (text->isVisible()) {
                texts.emplace(text->mapTo(view.get(), QPoint()).y(), text->text());
            }
        }
        QStringList list;
        for (const auto &[y, content] : texts) {
            list.append(content);
        }
        return list;
    }

    int top(const QString &content) const {
        for (const auto *text : view->findChildren<StyleConfigurableTextView *>()) {
            if (text->isVisible() && text->text() == content) {
                return text->mapTo(view.get(), QPoint()).y();
            }
        }
        return -1;
    }

    RecordedLog log;
    std::shared_ptr<ContentManager> manager = std::make_shared<ContentManager>();
    Shared<ContentManager>::Scope scope{manager};
    Shared<ConditionEvaluator>::Scope conditions{std::make_shared<ConditionEvaluator>(
        Config<ConditionEvaluator::NamedConditions>(
            [](const Configuration &c) -> decltype(auto) { return c._conditions(); },
            ConditionEvaluator::NamedConditions()),
        manager)};
    Plugins::Registration plugin = Plugins::registerPlugin(std::make_shared<AppManager::PopulatePlugin>());
    TestMainQueue queue;
    std::unique_ptr<ContainerViewController> view;
};

TEST_F(Container, KeepsComponentsInThePlacesOfTheirItemsWhateverTheOrderOfTheirComing) {
    for (const char *name : {"A1", "B1", "C1"}) {
        set(name, "false");
    }
    show({text("a", "A1"), text("b", "B1"), text("always"), text("c", "C1"), text("never", "D1")});
    EXPECT_TRUE(shows({"always"}));
    EXPECT_EQ(log.takeLines().size(), 1U) << "the variable of the last one is not there";
    const struct {
        const char *name, *value;
        QStringList texts;
    } rows[] = {{"C1", "true", {"always", "c"}},
                {"A1", "true", {"a", "always", "c"}},
                {"B1", "true", {"a", "b", "always", "c"}},
                {"A1", "false", {"b", "always", "c"}}};
    for (const bool isAnimated : {false, true}) {
        appearance().setAnimated(isAnimated);
        for (const auto &row : rows) {
            set(row.name, row.value);
            EXPECT_TRUE(shows(row.texts)) << row.name << "=" << row.value << isAnimated;
        }
        set("B1", "false");
        set("C1", "false");
        EXPECT_TRUE(shows({"always"}));
    }
}

TEST_F(Container, MovesWithoutAJumpAndEndsWhereItWouldStandWithoutAnimation) {
    set("A1", "true");
    set("B1", "false");
    show({text("goes", "A1"), text("comes\nwith\nthree lines", "B1"), text("below")});
    const int before = top("below");
    appearance().setAnimated(true);
    set("A1", "false");
    set("B1", "true");
    settle();
    EXPECT_EQ(top("below"), before) << "what goes leaves its space for the moment";
    std::vector<int> tops;
    while (shownTexts().size() < 2) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1000);
        if (const int now = top("below"); tops.empty() || now != tops.back()) {
            tops.push_back(now);
        }
    }
    EXPECT_TRUE(std::ranges::is_sorted(tops)) << ::testing::PrintToString(tops) << ": one movement, downward";
    const int after = top("below");
    appearance().setAnimated(false);
    set("B1", "false");
    set("B1", "true");
    settle();
    EXPECT_EQ(top("below"), after);
    EXPECT_GT(after, before);
}

TEST_F(Container, TakesTheFocusAwayOnlyWhileItIsOnShow) {
    set("A1", "true");
    show({text("a", "A1")});
    auto *area = view->findChild<QScrollArea *>();
    QWidget window;
    view->setParent(&window);
    window.show();
    for (const bool isOnShow : {false, true}) {
        isOnShow ? view->viewWillAppear() : view->viewWillDisappear();
        area->setFocus();
        set("A1", isOnShow ? "true" : "false");
        settle();
        EXPECT_EQ(window.focusWidget() == area, !isOnShow);
    }
    view->setParent(nullptr);
}

TEST_F(Container, RefreshesTextsThroughAllTheVariablesThatTheyDependOn) {
    set("GREETING", "Hello ${Choice-0}");
    set("Choice-0", "you");
    show({text("${GREETING}!"), text("Plain")});
    auto *area = view->findChild<QScrollArea *>();
    const struct {
        const char *name, *value, *text;
    } rows[] = {{"Choice-0", "Ada", "Hello Ada!"},
                {"GREETING", "Bye, ${OTHER}", "${GREETING}!"},
                {"OTHER", "Bob", "Bye, Bob!"},
                {"OTHER", "Bob\nand\nall the others", "Bye, Bob\nand\nall the others!"}};
    for (const auto &row : rows) {
        set(row.name, row.value);
        EXPECT_TRUE(shows({row.text, "Plain"}));
        EXPECT_EQ(area->accessibleName(), row.text);
    }
    EXPECT_EQ(log.lines().size(), 1U) << "one reading of one unknown name";
    set("Choice-0", "nobody");
    EXPECT_EQ(queue.runUntilEmpty(), 0U) << "not in the text any more";
}

/// Counts the times that a text is painted in a place too low for it.
class Paints final : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent *event) override {
        const auto *text = static_cast<StyleConfigurableTextView *>(watched);
        if (event->type() == QEvent::Paint) {
            ++all;
            cut += text->height() < text->heightForWidth(text->width()) ? 1 : 0;
        }
        return false;
    }
    int all = 0;
    int cut = 0;
};

TEST_F(Container, GivesATextItsNewSpaceBeforeItIsPainted) {
    set("NAME", "short");
    show({text("${NAME}"), text("below")});
    Paints paints;
    view->findChild<StyleConfigurableTextView *>()->installEventFilter(&paints);
    for (const char *value : {"one\ntwo\nthree", "one", "one\ntwo\nthree\nfour\nfive"}) {
        set("NAME", value);
        settle();
    }
    EXPECT_GE(paints.all, 3);
    EXPECT_EQ(paints.cut, 0);
}

} // namespace
} // namespace velmar
