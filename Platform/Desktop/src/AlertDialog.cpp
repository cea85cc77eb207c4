#include "AlertDialog.h"

#include "AlertSign.h"

#include <Desktop/LiteralLabel.h>

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <string>

namespace velmar {

namespace {

// In points, on a grid of 4.
constexpr int outerMargin = 24;
constexpr int signGap = 16;
constexpr int textWidth = 384;
constexpr int contentWidth = AlertSign::side + signGap + textWidth;
constexpr int paragraphGap = 8;
constexpr int buttonGap = 4;  // in addition to ringRoom
constexpr int ringRoom = 4;   // kept by each button for its focus ring
constexpr int frameRoom = 96; // kept around the window for its title bar and desktop panels
constexpr int smallestScreen = 600;
constexpr double messageScale = 15.0 / 14; // size of the message relative to the font of controls

// Limit of characters: longer texts are unreadable and slow to lay out.
constexpr qsizetype longestText = 10'000;

/// Inserts break opportunities into words that are wider than a line.
QString breakable(const QString &text, const QFontMetrics &metrics) {
    QString result;
    QTextBoundaryFinder words(QTextBoundaryFinder::Line, text);
    qsizetype start = 0;
    while (words.toNextBoundary() >= 0) {
        const QString word = text.mid(start, words.position() - start);
        start = words.position();
        if (metrics.horizontalAdvance(word) <= textWidth) {
            result += word;
            continue;
        }
        QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, word);
        qsizetype from = 0;
        while (characters.toNextBoundary() >= 0) {
            result += word.mid(from, characters.position() - from) + QChar(0x200b);
            from = characters.position();
        }
    }
    return result;
}

QLabel *paragraph(const std::string &content, bool isMessage, QWidget *parent) {
    auto *label = new QLabel(parent);
    if (isMessage) {
        QFont font = label->font();
        font.setBold(true);
        font.setPointSizeF(font.pointSizeF() * messageScale);
        label->setFont(font);
    } else {
        label->setForegroundRole(QPalette::PlaceholderText);
    }
    QString text = QString::fromStdString(content);
    if (text.size() > longestText) {
        text = text.left(longestText) + QChar(0x2026);
    }
    const QString shown = breakable(text, label->fontMetrics());
    label->setTextFormat(Qt::PlainText);
    label->setText(shown);
    label->setAccessibleName(text);
    label->setWordWrap(true);
    label->setFixedWidth(textWidth);
    // A copied text would contain the inserted break opportunities.
    label->setTextInteractionFlags(shown == text ? Qt::TextSelectableByMouse : Qt::NoTextInteraction);
    return label;
}

/// Returns an area of at most `largestHeight` in which the column scrolls if it is higher.
QScrollArea *scrolling(QWidget *column, int largestHeight, QWidget *parent) {
    auto *area = new QScrollArea(parent);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(column);
    column->setAutoFillBackground(false);
    area->viewport()->setAutoFillBackground(false);
    const int bar = column->height() > largestHeight ? area->verticalScrollBar()->sizeHint().width() : 0;
    area->setFocusPolicy(Qt::NoFocus);
    area->setFixedSize(column->width() + bar, std::min(column->height(), largestHeight));
    return area;
}

} // namespace

AlertDialog::AlertDialog(const Alert &alert, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), buttons_(alert.buttons) {
    // Alerts don't count as windows of the application.
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(QCoreApplication::applicationName());
    setAccessibleName(QString::fromStdString(alert.messageText));
    if (buttons_.empty()) {
        buttons_ = {QCoreApplication::translate("QPlatformTheme", "OK").toStdString()};
    }

    QWidget *textColumn = makeTexts(alert);
    QWidget *buttonColumn = makeButtons();
    const QScreen *screen = parent != nullptr ? parent->screen() : QGuiApplication::primaryScreen();
    const int room = (screen == nullptr ? smallestScreen : screen->availableGeometry().height()) - frameRoom -
                     3 * outerMargin;
    // Each column gets half the height, plus what the other doesn't need.
    const int half = room / 2;
    texts_ = scrolling(textColumn, std::max(half, room - buttonColumn->height()), this);
    QScrollArea *buttons = scrolling(buttonColumn, std::max(half, room - textColumn->height()), this);

    auto *top = new QHBoxLayout;
    top->setSpacing(signGap);
    top->addWidget(new AlertSign(alert.style, alert.icon, this), 0, Qt::AlignTop);
    top->addWidget(texts_, 1, Qt::AlignVCenter);
    top->setContentsMargins(ringRoom, ringRoom, ringRoom, 0);

    // The buttons extend into the margin by the room of their focus rings.
    auto *layout = new QVBoxLayout(this);
    constexpr int margin = outerMargin - ringRoom;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(top);
    layout->addWidget(buttons, 0, Qt::AlignRight);
}

QWidget *AlertDialog::makeTexts(const Alert &alert) {
    auto *column = new QWidget(this);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(paragraphGap);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    if (!alert.messageText.empty()) {
        layout->addWidget(paragraph(alert.messageText, true, column));
    }
    if (!alert.informativeText.empty()) {
        layout->addWidget(paragraph(alert.informativeText, false, column));
    }
    column->setFixedWidth(textWidth);
    column->setFixedHeight(std::max(layout->heightForWidth(textWidth), 0));
    return column;
}

QWidget *AlertDialog::makeButtons() {
    auto *column = new QWidget(this);
    std::vector<QPushButton *> buttons;
    int rowWidth = 0;
    for (const std::string &title : buttons_) {
        const std::size_t index = buttons.size();
        const QString text = QString::fromStdString(title);
        auto *button = new QPushButton(literalLabel(text), column);
        button->setAccessibleName(text);
        button->setDefault(index == 0);
        button->setAutoDefault(index == 0);
        connect(button, &QPushButton::clicked, this, [this, index] { done(static_cast<int>(index) + 1); });
        rowWidth += button->sizeHint().width() + (index == 0 ? 0 : buttonGap);
        buttons.push_back(button);
    }
    constexpr int width = contentWidth + 2 * ringRoom;
    const bool isRow = rowWidth <= width;
    auto *layout = new QBoxLayout(isRow ? QBoxLayout::RightToLeft : QBoxLayout::TopToBottom, column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(isRow ? buttonGap : 0);
    for (QPushButton *button : buttons) {
        button->setMaximumWidth(width);
        layout->addWidget(button);
    }
    if (isRow) {
        layout->addStretch(1);
    }
    buttons.front()->setFocus();
    column->setFixedSize(width, layout->sizeHint().height());
    return column;
}

std::size_t AlertDialog::answer() const {
    if (result() > 0) {
        return static_cast<std::size_t>(result()) - 1;
    }
    const auto cancel = std::find(buttons_.begin(), buttons_.end(), "Cancel");
    const auto last = buttons_.end() - 1;
    return static_cast<std::size_t>((cancel == buttons_.end() ? last : cancel) - buttons_.begin());
}

void AlertDialog::changeEvent(QEvent *event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized()) {
        // The alert blocks the windows below.
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
}

void AlertDialog::keyPressEvent(QKeyEvent *event) {
    // Scrolls the texts, since the buttons don't use these keys.
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
        texts_->verticalScrollBar()->triggerAction(event->key() == Qt::Key_PageUp
                                                       ? QAbstractSlider::SliderPageStepSub
                                                       : QAbstractSlider::SliderPageStepAdd);
    } else {
        QDialog::keyPressEvent(event);
    }
}

void AlertDialog::place() {
    const QScreen *screen = parentWidget() == nullptr ? QGuiApplication::primaryScreen() : nullptr;
    if (screen != nullptr) {
        adjustSize();
        move(screen->geometry().center() - rect().center());
    }
}

} // namespace velmar
