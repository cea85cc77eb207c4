#pragma once

#include <Interaction/Alert.h>

#include <QWidget>

#include <memory>

namespace velmar {

/// The picture of an alert: its icon or the sign of its style. Warnings and critical alerts add their sign to
/// the icon as a badge. The signs are drawn because a bare installation has no icon theme.
class AlertSign final : public QWidget {
    Q_OBJECT

public:
    AlertSign(Alert::Style style, std::shared_ptr<const AlertIcon> icon, QWidget *parent);

    static constexpr int side = 64; ///< In points.

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Alert::Style style_;
    std::shared_ptr<const AlertIcon> icon_;
};

} // namespace velmar
