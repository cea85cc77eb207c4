#include "ViewTest.h"

#include <Views/Content/Components/Base.h>
#include <Views/Content/Containers/ContainerViewController.h>

#include <Configuration/Configuration.h>
#include <Support/RecordedLog.h>
#include <Variables/ConditionEvaluator.h>
#include <Variables/ContentManager.h>
#include <Variables/PopulatePlugin.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVariantAnimation>

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace velmar {
namespace {

/// Fixture with a visible container of texts, some with conditions, and a separate store of variables.
class Container : public ViewTest<> {
protected:
    void show(const std::vector<ComponentItem> &components) {
        ContainerItem item;
        item._components.set(components);
        view = std::make_unique<ContainerViewController>(item, ContainerViewController::Kind::inSoleSlide,
                                                         std::nullopt, services.bundle, appearance(), nullptr,
                                                         conditions);
        view->resize(500, 400);
        view->viewWillAppear();
        view->show();
        settle();
    }

    void set(std::string_view name, std::string value) {
        manager->updateVariable(name, std::move(value), false);
    }

    int top(const QString &content) const {
        for (const auto &[top, text] : placedTexts(*view)) {
            if (text == content) {
                return top;
            }
        }
        return -1;
    }

    /// Advances the running animations to their end in 20 steps, independent of real time.
    void animate(const std::function<void()> &afterStep = [] {}) {
        for (auto *animation : view->findChildren<QVariantAnimation *>()) {
            if (animation->state() != QAbstractAnimation::Running) {
                continue;
            }
            animation->pause();
            const int duration = animation->duration();
            for (int step = 1; step <= 20; ++step) {
                animation->setCurrentTime(duration * step / 20);
                settle();
                afterStep();
            }
            return;
        }
        ADD_FAILURE() << "nothing is animated";
    }

    RecordedLog log;
    std::shared_ptr<ContentManager> manager = services.variables;
    Shared<ContentManager>::Scope scope{manager};
    std::shared_ptr<ConditionEvaluator> conditions =
        std::make_shared<ConditionEvaluator>(ConditionEvaluator::NamedConditions(), manager);
    Plugins::Registration plugin = Plugins::registerPlugin(std::make_shared<PopulatePlugin>());
    std::unique_ptr<ContainerViewController> view;
};

TEST_F(Container, MovesWithoutAJumpAndEndsWhereItWouldStandWithoutAnimation) {
    const auto space = [](const char *condition) {
        ComponentItem::Spacer spacer;
        if (condition != nullptr) {
            spacer.common._condition.set(Expression(condition));
        }
        return ComponentItem{spacer};
    };
    const struct {
        const char *description;
        std::vector<ComponentItem> above;
    } rows[] = {{"flexible spaces",
                 {text("goes", "A1"), space("A1"), text("comes\nwith\nthree lines", "B1"), space("B1")}},
                {"a space that comes beside one that stays",
                 {text("top"), space("B1"), text("middle"), space(nullptr)}}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.description);
        appearance().setAnimated(false);
        set("A1", "true");
        set("B1", "false");
        std::vector<ComponentItem> components = row.above;
        components.push_back(text("below"));
        show(components);
        const int before = top("below");
        const bool isGoing = shownTexts(*view).contains("goes");
        appearance().setAnimated(true);
        set("A1", "false");
        set("B1", "true");
        settle();
        if (isGoing) {
            animate([&] { EXPECT_EQ(top("below"), before) << "what goes leaves its space for the moment"; });
        }
        std::vector<int> tops{before};
        animate([&] { tops.push_back(top("below")); });
        appearance().setAnimated(false);
        set("B1", "false");
        set("B1", "true");
        settle();
        const int distance = top("below") - before;
        EXPECT_EQ(tops.back(), top("below"));
        EXPECT_EQ(shownTexts(*view).last(), "below") << "each in the place of its item";
        for (std::size_t step = 1; step < tops.size(); ++step) {
            const int length = (tops[step] - tops[step - 1]) * (distance < 0 ? -1 : 1);
            EXPECT_TRUE(length >= 0 && length <= std::abs(distance) / 5 + 2)
                << ::testing::PrintToString(tops);
        }
    }
}

TEST_F(Container, MovesATextOfAnyLengthForThePriceOfTheViewport) {
    set("A1", "true");
    show({text("above"), text(QString("line\n").repeated(10'000).toStdString(), "A1")});
    const auto mostMemory = [] { // Peak of the process, in MiB.
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss / 1024;
    };
    const long before = mostMemory();
    appearance().setAnimated(true);
    for (const char *value : {"false", "true"}) {
        set("A1", value);
        settle();
        animate([&] { view->grab(); });
        if (*value == 'f') {
            animate(); // Its space closes.
        }
    }
    EXPECT_LT(mostMemory() - before, 200);
}

TEST_F(Container, MayGoWhileSomethingIsUnderWay) {
    for (const bool isInserting : {false, true}) {
        set("A1", "true");
        set("B1", "true");
        show({text("a", "A1"), text("b", "B1"), text("c", "A1 == false")});
        appearance().setAnimated(true);
        set("A1", "false");
        settle();
        if (isInserting) {
            animate();
        }
        set("B1", "false");
        view.reset();
        appearance().setAnimated(false);
        EXPECT_EQ(queue.runUntilEmpty(), 1U) << "a reload that finds nobody";
        settle();
    }
}

TEST_F(Container, HasOnlyItsComponentsLoseTheFocusForAReloadAndOnlyWhileItIsOnShow) {
    set("B1", "true");
    show({text("a", "A1"), text("b", "B1")});
    QWidget window;
    view->setParent(&window);
    QLineEdit beside(&window);
    auto *within = new QLineEdit(view->componentViews()[1]);
    auto *area = view->findChild<QScrollArea *>();
    int commits = 0;
    for (const QLineEdit *edit : window.findChildren<QLineEdit *>()) {
        QObject::connect(edit, &QLineEdit::editingFinished, edit, [&] { ++commits; });
    }
    view->show();
    window.show();
    window.activateWindow();
    settle();
    const struct {
        QWidget *focused;
        bool isOnShow, goes;
        int commits;
        QWidget *then;
    } rows[] = {{within, false, false, 0, within},  {within, true, false, 1, within},
                {&beside, true, false, 0, &beside}, {area, true, false, 0, area},
                {within, true, true, 1, &window},   {&beside, true, true, 0, &beside}};
    for (const auto &row : rows) {
        row.isOnShow ? view->viewWillAppear() : view->viewWillDisappear();
        row.focused->setFocus();
        QKeyEvent typed(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x");
        QCoreApplication::sendEvent(row.focused, &typed);
        commits = 0;
        if (row.goes) {
            set("B1", "false");
        }
        set("A1", top("a") < 0 ? "true" : "false");
        settle();
        EXPECT_EQ(commits, row.commits);
        EXPECT_EQ(window.focusWidget(), row.then);
    }
    view->setParent(nullptr);
}

TEST_F(Container, IsGoneThroughByTheTabKeyInTheOrderOfItsComponents) {
    const auto button = [](const char *label, const char *condition) {
        ComponentItem::Button item;
        item._text.set(label);
        item.common._condition.set(Expression(condition));
        return ComponentItem{item};
    };
    set("ONE", "true");
    show({button("1", "A1"), button("2", "ONE"), button("3", "A1"), text("4"), button("5", "ONE"),
          button("6", "A1")});
    QWidget window;
    view->setParent(&window);
    QPushButton bar("bar", &window);
    window.show();
    const auto order = [&] {
        QStringList labels;
        for (const QWidget *stop = bar.nextInFocusChain(); stop != &bar; stop = stop->nextInFocusChain()) {
            if (const auto *stopped = qobject_cast<const QPushButton *>(stop)) {
                labels.append(stopped->text());
            }
        }
        return labels.join(u' ');
    };
    for (const char *value : {"true", "false", "true"}) {
        set("A1", value);
        settle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(order(), *value == 't' ? "1 2 3 5 6" : "2 5");
        EXPECT_EQ(view->findChild<QScrollArea *>()->focusPolicy(), Qt::NoFocus);
    }
    view->setParent(nullptr);
}

/// Counts the paints of a text in too small a height.
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

TEST_F(Container, RefreshesTextsThroughAllTheirVariablesInTheirNewSpace) {
    set("GREETING", "Hello ${Choice-0}");
    set("Choice-0", "you");
    show({text("${GREETING}!"), text("Plain")});
    auto *area = view->findChild<QScrollArea *>();
    Paints paints;
    view->findChild<StyleConfigurableTextView *>()->installEventFilter(&paints);
    const struct {
        const char *name, *value, *text;
    } rows[] = {{"Choice-0", "Ada", "Hello Ada!"},
                {"GREETING", "Bye, ${OTHER}", "${GREETING}!"},
                {"OTHER", "Bob", "Bye, Bob!"},
                {"OTHER", "Bob\nand\nall the others", "Bye, Bob\nand\nall the others!"}};
    for (const auto &row : rows) {
        set(row.name, row.value);
        settle();
        EXPECT_EQ(shownTexts(*view), (QStringList{row.text, "Plain"}));
        EXPECT_EQ(area->accessibleName(), row.text);
    }
    EXPECT_GE(paints.all, 3);
    EXPECT_EQ(paints.cut, 0);
    EXPECT_EQ(log.lines().size(), 1U) << "one reading of one unknown name";
    set("Choice-0", "nobody");
    EXPECT_EQ(queue.runUntilEmpty(), 0U) << "not in the text any more";
}

} // namespace
} // namespace velmar
