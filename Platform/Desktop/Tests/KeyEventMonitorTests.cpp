#include <Desktop/KeyEventMonitor.h>
#include <Support/QtTest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QWindow>

#include <optional>

namespace velmar {
namespace {

class KeyEvents : public QtTest<> {
protected:
    KeyEvents() {
        field.show();
        field.setFocus();
    }

    void press(int key, Qt::KeyboardModifiers modifiers, const QString &text = {}) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(field.windowHandle(), &event);
    }

    QLineEdit field;
};

TEST_F(KeyEvents, AreGivenOnceWithTheirCharacterAndModifiers) {
    constexpr auto all = Qt::ControlModifier | Qt::MetaModifier | Qt::AltModifier | Qt::ShiftModifier;
    const struct {
        int key;
        Qt::KeyboardModifiers modifiers;
        std::string characters;
    } cases[] = {{Qt::Key_F, all, "F"},
                 {Qt::Key_F, all | Qt::KeypadModifier | Qt::GroupSwitchModifier, "F"},
                 {Qt::Key_F, Qt::NoModifier, "F"},
                 {Qt::Key_1, Qt::ControlModifier, "1"},
                 {Qt::Key_F1, Qt::AltModifier, ""},
                 {0x0416, Qt::MetaModifier, "Ж"},
                 {Qt::Key_A, Qt::ShiftModifier, "A"}};
    for (const auto &row : cases) {
        std::vector<KeyEventMonitor::Event> events;
        const KeyEventMonitor monitor([&](const KeyEventMonitor::Event &event) {
            events.push_back(event);
            return false;
        });
        for (const int alone : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt, Qt::Key_AltGr}) {
            press(alone, row.modifiers);
        }
        press(row.key, row.modifiers);
        ASSERT_EQ(events.size(), 1U) << row.key;
        EXPECT_EQ(events[0].charactersIgnoringModifiers, row.characters);
        EXPECT_EQ(events[0].command, row.modifiers.testFlag(Qt::ControlModifier));
        EXPECT_EQ(events[0].control, row.modifiers.testFlag(Qt::MetaModifier));
        EXPECT_EQ(events[0].option, row.modifiers.testFlag(Qt::AltModifier));
        EXPECT_EQ(events[0].shift, row.modifiers.testFlag(Qt::ShiftModifier));
    }
}

TEST_F(KeyEvents, GoNoFurtherWhenTheHandlerTakesThem) {
    bool takes = true;
    std::optional<KeyEventMonitor> monitor(std::in_place, [&](const auto &) { return takes; });
    press(Qt::Key_X, Qt::NoModifier, "x");
    EXPECT_EQ(field.text(), "");
    takes = false;
    press(Qt::Key_Y, Qt::NoModifier, "y");
    EXPECT_EQ(field.text(), "y");
    takes = true;
    monitor.reset();
    press(Qt::Key_Z, Qt::NoModifier, "z");
    EXPECT_EQ(field.text(), "yz");
}

} // namespace
} // namespace velmar
