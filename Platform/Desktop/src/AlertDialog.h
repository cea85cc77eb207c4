#pragma once

#include <QDialog>

namespace velmar {

struct Alert;

/// The window of an alert: its icon, its texts and, from the right, its buttons.
class AlertDialog final : public QDialog {
    Q_OBJECT

public:
    AlertDialog(const Alert &alert, QWidget *parent);
};

} // namespace velmar
