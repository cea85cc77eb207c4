#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace velmar {

/// Directs all keys to a window, including the window manager's shortcuts, while the window is active and no
/// dialog or menu of this application is open.
class KeyboardGrab final : public QObject {
    Q_OBJECT

public:
    /// The window must have a native window and outlive the grab.
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
