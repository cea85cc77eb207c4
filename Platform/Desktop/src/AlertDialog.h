#pragma once

#include <QDialog>

#include <cstddef>
#include <string>
#include <vector>

class QScrollArea;

namespace velmar {

struct Alert;

/// The window of an alert: icon, texts and buttons. The buttons form a row from the right if they fit,
/// otherwise a column. Content that exceeds the screen scrolls.
class AlertDialog final : public QDialog {
    Q_OBJECT

public:
    AlertDialog(const Alert &alert, QWidget *parent);

    /// Returns the index of the pressed button, or the answer that closing the window implies.
    [[nodiscard]] std::size_t answer() const;

    /// Centres the dialog on the screen if it has no parent window.
    void place();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *makeTexts(const Alert &alert);
    QWidget *makeButtons();

    std::vector<std::string> buttons_;
    QScrollArea *texts_ = nullptr;
};

} // namespace velmar
