#include "QtTest.h"

#include <Desktop/Alert.h>

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace velmar {
namespace {

class Alerts : public QtTest {
protected:
    /// Shows the alert and lets the user act once it is there.
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
                         .buttons = {"Yes", "Maybe", "No"}};
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

TEST_F(Alerts, GiveTheButtonThatWasPressed) {
    const auto pressed = [this](const QString &text) {
        return answer(question, [text](QWidget &dialog) { button(dialog, text).click(); });
    };
    EXPECT_EQ(pressed("Yes"), 0U);
    EXPECT_EQ(pressed("Maybe"), 1U);
    EXPECT_EQ(pressed("No"), 2U);
}

TEST_F(Alerts, TakeReturnForTheFirstButtonAndClosingForTheLast) {
    const auto key = [this](int code) {
        return answer(question, [code](QWidget &dialog) {
            QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier);
            QCoreApplication::sendEvent(&dialog, &event);
        });
    };
    EXPECT_EQ(key(Qt::Key_Return), 0U);
    EXPECT_EQ(key(Qt::Key_Escape), 2U);
    EXPECT_EQ(answer(question, [](QWidget &dialog) { dialog.close(); }), 2U);
    const Alert sole{
        .style = Alert::Style::critical, .messageText = "Broken", .informativeText = "", .buttons = {"Quit"}};
    EXPECT_EQ(answer(sole, [](QWidget &dialog) { dialog.close(); }), 0U);
}

} // namespace
} // namespace velmar
