#include <Desktop/DesktopAlertPresenter.h>

#include <Dispatch/UncaughtHandler.h>
#include <Support/QtTest.h>
#include <Testing/TemporaryDirectory.h>

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <stdexcept>

#include <sys/stat.h>

namespace velmar {
namespace {

class Alerts : public QtTest<> {
protected:
    /// Shows the alert and calls `user` with its dialog.
    static std::size_t answer(const Alert &alert, const std::function<void(QWidget &)> &user) {
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                poll.stop();
                user(*dialog);
            }
        });
        poll.start(1);
        return DesktopAlertPresenter().runModal(alert);
    }

    static QPushButton &button(QWidget &dialog, const QString &text) {
        for (QPushButton *candidate : dialog.findChildren<QPushButton *>()) {
            if (candidate->text() == text) {
                return *candidate;
            }
        }
        throw std::out_of_range(text.toStdString());
    }

    const Alert question{.style = Alert::Style::warning,
                         .messageText = "Really?",
                         .informativeText = "There is <b>no</b> way back.",
                         .buttons = {"Yes", "Save & Quit", "No"}};
};

TEST_F(Alerts, ShowTheirTextsAsTheyAre) {
    answer(question, [](QWidget &dialog) {
        QStringList texts;
        for (const QLabel *label : dialog.findChildren<QLabel *>()) {
            texts.append(label->text());
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
        }
        EXPECT_EQ(texts, QStringList({"Really?", "There is <b>no</b> way back."}));
        dialog.close();
    });
}

TEST_F(Alerts, ShowTheSignOfTheirStyleAsABadgeOnAPictureIfSomethingIsWrong) {
    const TemporaryDirectory directory;
    const std::string path = directory.path("green.png");
    QImage green(64, 64, QImage::Format_RGB32);
    green.fill(Qt::green);
    green.save(QString::fromStdString(path));
    const auto icon = DesktopAlertPresenter().icon(path);
    const QColor blue = QApplication::palette().color(QPalette::Highlight);
    const QColor orange(0xd9, 0x8a, 0x00);
    const QColor red(0xd1, 0x34, 0x38);
    const struct {
        Alert::Style style;
        std::shared_ptr<const AlertIcon> icon;
        QColor color;
    } cases[] = {{Alert::Style::informational, nullptr, blue}, {Alert::Style::informational, icon, Qt::green},
                 {Alert::Style::warning, nullptr, orange},     {Alert::Style::warning, icon, orange},
                 {Alert::Style::critical, nullptr, red},       {Alert::Style::critical, icon, red}};
    for (const auto &row : cases) {
        Alert alert = question;
        alert.style = row.style;
        alert.icon = row.icon;
        answer(alert, [&](QWidget &dialog) {
            const auto widgets = dialog.findChildren<QWidget *>();
            const auto sign = std::find_if(widgets.begin(), widgets.end(), [](const QWidget *each) {
                return each->metaObject()->className() == std::string("velmar::AlertSign");
            });
            ASSERT_NE(sign, widgets.end());
            // Near the left end of the sign's foot, where every shape has its colour.
            const QPoint place = row.icon ? QPoint(44, 59) : QPoint(17, 52);
            EXPECT_EQ((*sign)->grab().toImage().pixelColor(place), row.color)
                << static_cast<int>(row.style) << (row.icon ? " with a picture" : "");
            dialog.close();
        });
    }
}

TEST_F(Alerts, GiveTheButtonTheFirstForReturnAndTheLastForClosing) {
    const auto press = [](const QString &text) {
        return [text](QWidget &dialog) { button(dialog, text).click(); };
    };
    const auto key = [](int code) {
        return [code](QWidget &dialog) {
            QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier);
            QCoreApplication::sendEvent(&dialog, &event);
        };
    };
    const auto close = [](QWidget &dialog) { dialog.close(); };
    const std::pair<std::function<void(QWidget &)>, std::size_t> cases[] = {
        {press("Yes"), 0},        {press("Save && Quit"), 1}, {press("No"), 2},
        {key(Qt::Key_Return), 0}, {key(Qt::Key_Escape), 2},   {close, 2}};
    for (const auto &[user, expected] : cases) {
        EXPECT_EQ(answer(question, user), expected);
    }
}

TEST_F(Alerts, TakeCancelForClosingWhereverItStands) {
    const auto close = [](QWidget &dialog) { dialog.close(); };
    const std::pair<std::vector<std::string>, std::size_t> cases[] = {
        {{"Cancel", "Erase"}, 0}, {{"Yes", "No", "Cancel"}, 2}, {{"Yes", "No"}, 1}, {{}, 0}};
    for (const auto &[buttons, expected] : cases) {
        EXPECT_EQ(answer({.messageText = "?", .informativeText = {}, .buttons = buttons}, close), expected);
    }
}

TEST_F(Alerts, ArePresentedOneAfterAnotherAndAnsweredFromTheLoop) {
    DesktopAlertPresenter presenter;
    std::vector<std::pair<int, std::size_t>> answers;
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    for (int number = 0; number < 3; ++number) {
        presenter.present(question, [&, number](std::size_t button) {
            answers.emplace_back(number, button);
            throw std::runtime_error("which the next one doesn't mind");
        });
    }
    setUncaughtHandler([](std::string_view, const std::exception_ptr &) {});
    for (const char *text : {"No", "Save && Quit", "Yes"}) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        EXPECT_EQ(std::count_if(windows.begin(), windows.end(),
                                [](QWidget *each) { return each->isModal() && each->isVisible(); }),
                  1);
        const std::size_t before = answers.size();
        button(*QApplication::activeModalWidget(), text).click();
        EXPECT_EQ(answers.size(), before) << "not within the click";
        QCoreApplication::processEvents();
        // Deletes the answered dialog while the next one is open.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    setUncaughtHandler({});
    EXPECT_EQ(answers, (std::vector<std::pair<int, std::size_t>>{{0, 2}, {1, 1}, {2, 0}}));
}

TEST_F(Alerts, AreDismissedWithTheWindowBelow) {
    DesktopAlertPresenter presenter;
    auto window = std::make_unique<QWidget>();
    window->show();
    QApplication::setActiveWindow(window.get());
    std::vector<std::size_t> answers;
    const auto note = [&](std::size_t button) { answers.push_back(button); };
    presenter.present(question, note);
    presenter.present(question, note);
    window.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(answers, (std::vector<std::size_t>{2}));
    // The second alert is open and remains unanswered; a modal one opens above it.
    EXPECT_EQ(answer(question, [](QWidget &dialog) { button(dialog, "Yes").click(); }), 0U);
    EXPECT_NE(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Alerts, FitTheScreenWhateverTheySay) {
    std::string text;
    for (std::size_t i = 0; i < 5000; ++i) {
        text += "word" + std::string(i % 500, 'x') + " \xf0\x9f\x8c\x8d";
    }
    const std::vector<std::string> buttons(30, text.substr(0, 1000));
    answer({.messageText = text, .informativeText = text, .buttons = buttons}, [](QWidget &dialog) {
        EXPECT_LE(dialog.height(), dialog.screen()->availableGeometry().height());
        EXPECT_LE(dialog.width(), 560);
        dialog.close();
    });
}

TEST_F(Alerts, ReadIconsOfFilesThatHoldAPicture) {
    const TemporaryDirectory directory;
    const std::string large = directory.path("icon.dat"), pipe = directory.path("pipe.png");
    QImage(2000, 10, QImage::Format_RGB32).save(QString::fromStdString(large), "PNG");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const DesktopAlertPresenter presenter;
    EXPECT_NE(presenter.icon(large), nullptr);
    for (const std::string &none :
         {directory.write("text.png", "no picture"), directory.write("empty.png", ""), directory.path(),
          directory.path("missing"), pipe, std::string()}) {
        EXPECT_EQ(presenter.icon(none), nullptr) << none;
    }
    answer({.messageText = "", .informativeText = {}, .buttons = {}, .icon = presenter.icon(large)},
           [](QWidget &dialog) {
               EXPECT_FALSE(dialog.grab().isNull());
               dialog.close();
           });
}

} // namespace
} // namespace velmar
