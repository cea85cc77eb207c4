#include <Desktop/KeyEventMonitor.h>

#include <QCoreApplication>
#include <QKeyEvent>

namespace velmar {

namespace {

bool isModifierAlone(int key) {
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

std::string characters(const QKeyEvent &event) {
    // The code of a key with a character is its code point.
    const auto key = static_cast<char32_t>(event.key());
    return key <= U'\U0010FFFF' ? QString::fromUcs4(&key, 1).toStdString() : std::string();
}

} // namespace

class KeyEventMonitor::Filter final : public QObject {
public:
    explicit Filter(Handler handler) : handler_(std::move(handler)) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        // Filtered at the native window, which receives the event before the widgets.
        if (event->type() != QEvent::KeyPress || !watched->isWindowType()) {
            return false;
        }
        const auto &key = static_cast<const QKeyEvent &>(*event);
        if (isModifierAlone(key.key())) {
            return false;
        }
        const Qt::KeyboardModifiers modifiers = key.modifiers();
        return handler_(Event{.charactersIgnoringModifiers = characters(key),
                              .command = modifiers.testFlag(Qt::ControlModifier),
                              .control = modifiers.testFlag(Qt::MetaModifier),
                              .option = modifiers.testFlag(Qt::AltModifier),
                              .shift = modifiers.testFlag(Qt::ShiftModifier)});
    }

private:
    Handler handler_;
};

KeyEventMonitor::KeyEventMonitor(Handler handler) : filter_(std::make_unique<Filter>(std::move(handler))) {}
KeyEventMonitor::~KeyEventMonitor() = default;

} // namespace velmar
