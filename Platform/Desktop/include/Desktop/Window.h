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

/// A window of the desktop with the application's menus and one content. It never offers to be minimised. The
/// menu bar is on show while there are more menus than the application's own, unless the style says
/// otherwise, and comes by F10 where it isn't; shortcuts work in either case. Main thread.
class Window final : public QWidget {
    Q_OBJECT

public:
    /// What the window manager draws and allows; fixed for the window's life.
    struct Style {
        bool hasTitleBar = true; ///< Without one, the user has neither button nor resizing.
        bool isClosable = true;
        bool isResizable = true;
        bool isMovable = true;
        /// What the window is to the others of the desktop.
        enum class Rank {
            ordinary,
            front,   ///< Above the windows of other applications, on every workspace, and never minimised.
            popover, ///< Above them as well, and in no list of windows.
        } rank = Rank::ordinary;
        bool isRound = true;    ///< The corners of a window without title bar.
        bool hasMenuBar = true; ///< Without it, the menus come by F10 alone.
    };

    /// The menu must outlive the window.
    Window(Style style, MainMenu &menu);
    ~Window() override;

    /// Replaces the content, which is destroyed; the window owns the new one.
    void setContent(QWidget *content);
    [[nodiscard]] QWidget *content() const { return content_; }
    /// Gives up the content, which the caller has to put somewhere; null where there is none.
    [[nodiscard]] QWidget *takeContent();

    /// The size of the content, and the sizes between which the user may choose.
    void setSizes(QSize content, QSize minimum, QSize maximum);
    /// Makes a window that its screen has no room for smaller, by the frame that is known. Again when it is
    /// `framed`.
    void shrinkToScreen();

    /// With what the window manager puts around the window, as far as it is known.
    [[nodiscard]] QSize frameSize() const;
    /// The top left corner of the frame, in the coordinates of the desktop.
    void moveFrame(QPoint origin);

    /// What is behind round corners, if it is known: a painting of a rectangle of the desktop, given in its
    /// coordinates, at the painter's origin. To be set again when it has changed.
    void setBehind(std::function<void(QPainter &painter, const QRect &area)> behind);

    [[nodiscard]] const Style &style() const noexcept { return style_; }

    /// The radius of the corners of a window without title bar, in points.
    static constexpr int cornerRadius = 10;
    /// The height of the strip at the top by which a window without title bar is moved, in points.
    static constexpr int moveStripHeight = 40;

signals:
    /// Once, when the window manager has told what it puts around the window; never for a window without
    /// frame.
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
