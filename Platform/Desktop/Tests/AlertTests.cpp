#include "QtTest.h"

#include <Desktop/DesktopAlertPresenter.h>

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

} // namespace
} // namespace velmar
