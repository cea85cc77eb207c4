#pragma once

#include <Desktop/MainMenu.h>

#include <QWidget>

#include <functional>
#include <memory>

class QPainter;
class QVBoxLayout;

namespace velmar {

class FrameWatcher;
class MenuBar;
class RoundCorners;

/// A desktop window with the application's menus and one content widget. It has no minimise button. The menu
/// bar is visible while there is a menu besides the application's own, unless the style hides it; F10 shows a
/// hidden bar. Shortcuts always work. Main thread only.
class Window final : public QWidget {
    Q_OBJECT

public:
    /// Decorations and permitted operations; constant for the window's life.
    struct Style {
        bool hasTitleBar = true; ///< A window without one has no close button and cannot be resized.
        bool isClosable = true;
        bool isResizable = true;
        bool isMovable = true;
        /// Stacking level relative to other applications' windows.
        enum class Rank {
            ordinary,
            front,   ///< Above other applications' windows, on every workspace, never minimised.
            popover, ///< Above other applications' windows and not in window lists.
        } rank = Rank::ordinary;
        bool isRound = true;    ///< Round corners of a window without title bar.
        bool hasMenuBar = true; ///< A window without one shows its menus only on F10.
    };

    /// The menu must outlive the window.
    Window(Style style, MainMenu &menu);
    ~Window() override;

    /// Deletes the current content and takes ownership of the new one.
    void setContent(QWidget *content);
    [[nodiscard]] QWidget *content() const { return content_; }
    /// Releases the content to the caller, which must reparent or delete it. Returns nullptr if there is
    /// none.
    [[nodiscard]] QWidget *takeContent();

    /// Sets the size of the content and the limits of resizing by the user.
    void setSizes(QSize content, QSize minimum, QSize maximum);
    /// Shrinks a window that doesn't fit its screen with its frame, or a usual frame while that is unknown.
    /// Call again on framed().
    void shrinkToScreen();

    /// Size including the window manager's frame, once the frame is known.
    [[nodiscard]] QSize frameSize() const;
    /// Moves the top left corner of the frame to a point in desktop coordinates.
    void moveFrame(QPoint origin);

    /// Sets a function that paints the area behind round corners: a rectangle in desktop coordinates, at the
    /// painter's origin. Must be set again when that area changes.
    void setBehind(std::function<void(QPainter &painter, const QRect &area)> behind);

    [[nodiscard]] const Style &style() const noexcept { return style_; }

    /// Radius of the corners of a window without title bar, in points.
    static constexpr int cornerRadius = 10;
    /// Height of the strip at the top that moves a window without title bar, in points.
    static constexpr int moveStripHeight = 40;

signals:
    /// Emitted once, when the window manager has reported the size of its frame. Never emitted for a window
    /// without frame.
    void framed();
    void firstPainted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Style style_;
    QVBoxLayout *layout_;
    std::unique_ptr<RoundCorners> corners_;
    std::unique_ptr<MenuBar> menuBar_;
    std::unique_ptr<FrameWatcher> frameWatcher_;
    QWidget *content_ = nullptr;
    bool wasPainted_ = false;
};

} // namespace velmar
