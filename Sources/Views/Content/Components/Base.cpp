#include <Views/Content/Components/Base.h>

#include <Configuration/Populatable.h>
#include <Desktop/DesktopAppearance.h>
#include <Views/CustomViews/Colors.h>
#include <Views/CustomViews/Pixels.h>

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <string>

namespace velmar::ComponentViews {

namespace {

class BorderView final : public QWidget {
public:
    BorderView(BorderItem item, QWidget *parent) : QWidget(parent), item_(std::move(item)) {
        setFixedHeight(std::max(1, pixels(item_._height().value_or(1))));
        updateColor();
    }

protected:
    void changeEvent(QEvent *event) override {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::PaletteChange) {
            updateColor();
        }
    }

    void paintEvent(QPaintEvent * /*event*/) override {
        const double lineWidth = width() * item_._widthPercent();
        QPainter(this).fillRect(QRectF((width() - lineWidth) / 2, 0, lineWidth, height()), color_);
    }

private:
    void updateColor() {
        const std::optional<ColorItem> item = item_._color();
        color_ = item ? qColor(Color::of(*item, DesktopAppearance::isDark(palette())))
                      : palette().color(QPalette::Mid);
        update();
    }

    BorderItem item_;
    QColor color_;
};

} // namespace

QWidget *makeBorderView(const BorderItem &item, QWidget *parent) {
    return new BorderView(item, parent);
}

QMargins marginsOf(const MarginsItem &item, const QMargins &standard) {
    const auto side = [](const std::optional<double> &given, int otherwise) {
        return given ? pixels(*given) : otherwise;
    };
    return {side(item._left(), standard.left()), side(item._top(), standard.top()),
            side(item._right(), standard.right()), side(item._bottom(), standard.bottom())};
}

VariableNames involvedItemVariables(const VariableNames &itemVariables, const Variables &variables) {
    std::string text;
    for (const std::string &name : itemVariables) {
        text.append("${").append(name).append("}");
    }
    return involvedVariables(text, variables);
}

} // namespace velmar::ComponentViews
