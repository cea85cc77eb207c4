#include "AlertDialog.h"

#include <Desktop/Alert.h>
#include <Desktop/LiteralLabel.h>

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScreen>

namespace velmar {

namespace {

// Points.
constexpr int iconSize = 44;
constexpr int textWidth = 320;
constexpr int outerMargin = 24;

/// A triangle for what is wrong, a disc for what is worth knowing, each with its sign. Drawn rather than
/// taken from the desktop's icons, of which a bare installation has none.
class AlertIcon final : public QWidget {
public:
    AlertIcon(Alert::Style style, QWidget *parent) : QWidget(parent), style_(style) {
        setFixedSize(iconSize, iconSize);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool isDisc = style_ == Alert::Style::informational;
        const QColor color = isDisc                            ? palette().color(QPalette::Highlight)
                             : style_ == Alert::Style::warning ? QColor(0xd9, 0x8a, 0x00)
                                                               : QColor(0xd1, 0x34, 0x38);
        QPainterPath shape;
        if (isDisc) {
            shape.addEllipse(QRectF(3, 3, 38, 38));
        } else {
            shape.addPolygon(QPolygonF({{22, 6}, {40, 38}, {4, 38}, {22, 6}}));
        }
        painter.setBrush(color);
        painter.setPen(QPen(color, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(shape);
        painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
        if (isDisc) {
            painter.drawPoint(QPointF(22, 13));
            painter.drawLine(QPointF(22, 21), QPointF(22, 31));
        } else {
            painter.drawLine(QPointF(22, 17), QPointF(22, 26));
            painter.drawPoint(QPointF(22, 33));
        }
    }

private:
    Alert::Style style_;
};

QLabel *paragraph(const std::string &text, QWidget *parent) {
    auto *label = new QLabel(QString::fromStdString(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

AlertDialog::AlertDialog(const Alert &alert, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
    setWindowTitle(QCoreApplication::applicationName());
    setAccessibleName(QString::fromStdString(alert.messageText));

    auto *message = paragraph(alert.messageText, this);
    QFont font = message->font();
    font.setBold(true);
    message->setFont(font);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(8);
    texts->addWidget(message);
    if (!alert.informativeText.empty()) {
        texts->addWidget(paragraph(alert.informativeText, this));
    }

    auto *top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(new AlertIcon(alert.style, this), 0, Qt::AlignTop);
    top->addLayout(texts, 1);

    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->setDirection(QBoxLayout::RightToLeft);
    for (std::size_t index = 0; index < alert.buttons.size(); ++index) {
        const QString text = QString::fromStdString(alert.buttons[index]);
        auto *button = new QPushButton(literalLabel(text), this);
        button->setAccessibleName(text);
        button->setDefault(index == 0);
        button->setAutoDefault(index == 0);
        row->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, index] { done(static_cast<int>(index) + 1); });
        if (index == 0) {
            button->setFocus();
        }
    }
    row->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(outerMargin, outerMargin, outerMargin, outerMargin);
    layout->setSpacing(24);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(top);
    layout->addLayout(row);
}

std::size_t DesktopAlertPresenter::runModal(const Alert &alert) {
    AlertDialog dialog(alert, QApplication::activeWindow());
    if (const QScreen *screen =
            dialog.parentWidget() == nullptr ? QGuiApplication::primaryScreen() : nullptr) {
        dialog.adjustSize();
        dialog.move(screen->geometry().center() - dialog.rect().center());
    }
    // Escape and the window manager's way to close a window give 0, and stand for the last button.
    const int result = dialog.exec();
    return result > 0 ? static_cast<std::size_t>(result) - 1 : alert.buttons.size() - 1;
}

} // namespace velmar
