#pragma once

#include "model/AppViewModel.h"

#include "Booking.h"

#include <QColor>
#include <QStringList>

#include <optional>

namespace quorvane {

// The pane beside the list: the selected booking in full and its actions, judged again at
// every refresh and tick, so that a meeting that has ended loses join, reschedule and cancel
// without any refresh. Empty while the selection names no booking the model knows.
class BookingDetailModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool present READ present NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString email READ email NOTIFY changed)
    Q_PROPERTY(QString typeTitle READ typeTitle NOTIFY changed)
    Q_PROPERTY(QColor typeColor READ typeColor NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY changed)
    Q_PROPERTY(QColor statusTint READ statusTint NOTIFY changed)
    Q_PROPERTY(QString when READ when NOTIFY changed)
    Q_PROPERTY(QString theirTime READ theirTime NOTIFY changed)
    Q_PROPERTY(QString meet READ meet NOTIFY changed)     // empty: no "Meet" line
    Q_PROPERTY(QUrl meetURL READ meetURL NOTIFY changed)  // empty: the line shows no link; join() opens it
    Q_PROPERTY(QString booked READ booked NOTIFY changed) // "yesterday"; empty: no "Booked" line
    Q_PROPERTY(QStringList questions READ questions NOTIFY changed)
    Q_PROPERTY(QStringList answers READ answers NOTIFY changed) // one per question
    Q_PROPERTY(QString notes READ notes NOTIFY changed)
    Q_PROPERTY(bool showsJoin READ showsJoin NOTIFY changed)
    Q_PROPERTY(bool showsReschedule READ showsReschedule NOTIFY changed) // with Cancel
    Q_PROPERTY(bool showsNoShow READ showsNoShow NOTIFY changed)
    Q_PROPERTY(bool noShow READ noShow NOTIFY changed)
    Q_PROPERTY(QString cancelTitle READ cancelTitle NOTIFY changed)
    Q_PROPERTY(QString cancelMessage READ cancelMessage NOTIFY changed)

public:
    explicit BookingDetailModel(QObject *parent = nullptr);

    [[nodiscard]] bool present() const { return m_booking.has_value(); }
    [[nodiscard]] QString name() const { return field(&Booking::name); }
    [[nodiscard]] QString email() const { return field(&Booking::email); }
    [[nodiscard]] QString typeTitle() const;
    [[nodiscard]] QColor typeColor() const;
    [[nodiscard]] QString status() const;
    [[nodiscard]] QColor statusTint() const;
    [[nodiscard]] QString when() const;
    [[nodiscard]] QString theirTime() const;
    [[nodiscard]] QString meet() const;
    [[nodiscard]] QUrl meetURL() const;
    [[nodiscard]] QString booked() const;
    [[nodiscard]] QStringList questions() const;
    [[nodiscard]] QStringList answers() const;
    [[nodiscard]] QString notes() const;
    [[nodiscard]] bool showsJoin() const;
    [[nodiscard]] bool showsReschedule() const;
    [[nodiscard]] bool showsNoShow() const;
    [[nodiscard]] bool noShow() const { return m_booking && m_booking->noShow.value_or(false); }
    [[nodiscard]] QString cancelTitle() const;
    [[nodiscard]] QString cancelMessage() const;

    Q_INVOKABLE void join();
    Q_INVOKABLE void rescheduleMessage();
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void setNoShow(bool value);

private:
    void recompute() override;
    [[nodiscard]] QString field(QString Booking::*member) const { return m_booking ? (*m_booking).*member : QString(); }

    std::optional<Booking> m_booking;
    QDateTime m_now;
};

} // namespace quorvane
