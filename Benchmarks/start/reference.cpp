// Reference for the start of the application: a minimal program of the toolkit with a window.

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <unistd.h>

#include <string_view>

namespace {

class FirstPaint final : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Expose && static_cast<QWindow *>(watched)->isExposed()) {
            watched->removeEventFilter(this);
            // The window paints itself while it handles the event.
            QTimer::singleShot(0, this, [] {
                static constexpr std::string_view line = "First paint\n";
                [[maybe_unused]] const auto written = ::write(STDOUT_FILENO, line.data(), line.size());
            });
        }
        return false;
    }
};

} // namespace

int main(int argumentCount, char **arguments) {
    QApplication application(argumentCount, arguments);
    QWidget window;
    window.resize(900, 600);
    window.winId();
    FirstPaint firstPaint;
    window.windowHandle()->installEventFilter(&firstPaint);
    window.show();
    return QApplication::exec();
}
