#pragma once

#include <QDialog>

#include <cstddef>
#include <string>
#include <vector>

class QScrollArea;

namespace velmar {

struct Alert;

/// The window of an alert: its icon, its texts and its buttons, which stand in a row from the right as long
/// as that holds them, and below one another otherwise. What is too high for the screen scrolls.
class AlertDialog final : public QDialog {
    Q_OBJECT

public:
    AlertDialog(const Alert &alert, QWidget *parent);

    /// The button that was pressed, or what closing counts as.
    [[nodiscard]] std::size_t answer() const;

    /// In the middle of the screen, where there is no window to stand above.
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
