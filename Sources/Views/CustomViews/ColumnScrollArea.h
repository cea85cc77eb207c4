#pragma once

#include <QScrollArea>

namespace velmar {

/// A scroll area for a column of components. It accepts the Tab focus only while the column is too high, and
/// handles only the scroll keys: the window handles the keys that change slides. Its parent, which is updated
/// on focus changes, draws the focus ring.
class ColumnScrollArea final : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of the column.
    ColumnScrollArea(QWidget *column, QWidget *parent);

    /// Scrolls by a `Qt::Key`: Up, Down, PageUp, PageDown, Home or End. Returns false for any other key or if
    /// there is nothing to scroll.
    bool scroll(int key);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace velmar
