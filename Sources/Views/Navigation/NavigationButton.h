#pragma once

#include <Views/CustomViews/PushButton.h>

#include <QVariantAnimation>

#include <optional>

namespace velmar {

/// A button of the navigation bar. It keeps its place while it is hidden, and can come and go gradually.
class NavigationButton final : public PushButton {
    Q_OBJECT

public:
    /// `isPrimary`: the one that leads on.
    NavigationButton(bool isPrimary, QWidget *parent);

    /// The colour of the label; none for that of the theme. A primary button whose accent would make the
    /// colour hard to read is drawn as an ordinary one.
    void setTextColor(const std::optional<QColor> &color);

    /// Ends what is under way. A button that goes takes no more clicks of the mouse; whoever acts on
    /// `clicked` must look at `isConcealed()`, for keys and assistive programs press it still.
    void setConcealed(bool isConcealed);
    void setConcealed(bool isConcealed, int milliseconds);
    [[nodiscard]] bool isConcealed() const noexcept { return isConcealed_; }

protected:
    [[nodiscard]] bool takesKeys() const override { return !isConcealed_; }
    void paintEvent(QPaintEvent *event) override;

private:
    bool isPrimary_;
    bool isConcealed_ = false;
    QVariantAnimation opacity_;
};

} // namespace velmar
