#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace velmar {

/// Has every key go to a window, those of the window manager included, while the window is the active one and
/// none of our dialogs or menus is up.
class KeyboardGrab final : public QObject {
    Q_OBJECT

public:
    /// The window, which has its native window already, must outlive the grab.
    explicit KeyboardGrab(QWidget &window);
    ~KeyboardGrab() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void grab();
    void letGo();
    [[nodiscard]] bool isOfTheWindow(const QObject *object) const;
    [[nodiscard]] bool isWanted() const;

    QWidget &window_;
    QTimer later_;
};

} // namespace velmar
