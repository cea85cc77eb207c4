#pragma once

#include <Interaction/Alert.h>

#include <QWidget>

#include <memory>

namespace velmar {

/// What an alert shows beside its texts: the sign of its style, or its icon, to which the signs of warnings
/// and worse are put as a badge. The signs are drawn rather than taken from the desktop's icons, of which a
/// bare installation has none.
class AlertSign final : public QWidget {
    Q_OBJECT

public:
    AlertSign(Alert::Style style, std::shared_ptr<const AlertIcon> icon, QWidget *parent);

    static constexpr int side = 64; ///< Points.

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Alert::Style style_;
    std::shared_ptr<const AlertIcon> icon_;
};

} // namespace velmar
