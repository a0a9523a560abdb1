#pragma once

#include "model/AppViewModel.h"

#include "Booking.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace quorvane {

class AppModel;

// What the next-meeting card shows of the model's next booking. The card calls redraw() from
// its own timer so the countdown moves between the model's minute ticks.
class NextMeetingCardModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool hasBooking READ hasBooking NOTIFY changed)
    Q_PROPERTY(bool isNow READ isNow NOTIFY changed)
    Q_PROPERTY(QString caption READ caption NOTIFY changed)
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QString timeRange READ timeRange NOTIFY changed)
    Q_PROPERTY(QColor color READ color NOTIFY changed)
    Q_PROPERTY(bool hasLink READ hasLink NOTIFY changed)
    Q_PROPERTY(QString joinName READ joinName NOTIFY changed)

public:
    explicit NextMeetingCardModel(QObject *parent = nullptr);

    [[nodiscard]] bool hasBooking() const { return shown(); }
    [[nodiscard]] bool isNow() const;
    [[nodiscard]] QString caption() const;
    [[nodiscard]] QString headline() const;
    [[nodiscard]] QString timeRange() const;
    // The type's colour; grey for a type that no longer exists.
    [[nodiscard]] QColor color() const;
    [[nodiscard]] bool hasLink() const { return shown() && m_booking->meetURL().has_value(); }
    [[nodiscard]] QString joinName() const;

    // Reads the next booking and the clock again.
    Q_INVOKABLE void redraw() { reload(); }
    Q_INVOKABLE void join();

private:
    void recompute() override;
    // The model may go before the card: then there is nothing to show.
    [[nodiscard]] bool shown() const { return m_app && m_booking; }

    std::optional<Booking> m_booking;
    QDateTime m_date;
};

} // namespace quorvane
