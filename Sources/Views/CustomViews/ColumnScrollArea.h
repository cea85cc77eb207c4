#pragma once

#include <QScrollArea>

namespace velmar {

/// Scrolls a column that is too high, and looks like nothing else. It is a stop of the Tab key only while
/// there is something to scroll, and takes only the keys that scroll: those for going from slide to slide are
/// left to the window. The ring of its focus is drawn by its parent, which is told to by an update.
class ColumnScrollArea final : public QScrollArea {
    Q_OBJECT

public:
    /// Owns the column.
    ColumnScrollArea(QWidget *column, QWidget *parent);

    /// Scrolls by a `Qt::Key`: Up, Down, PageUp, PageDown, Home or End. False for any other, and where there
    /// is nothing to scroll.
    bool scroll(int key);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace velmar
