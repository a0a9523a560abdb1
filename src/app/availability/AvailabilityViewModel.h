#pragma once

#include "model/AppViewModel.h"

#include "availability/Availability.h"

#include <QStringList>

namespace quorvane {

// The availability screen around the grid: which of its three faces shows, the mode, the
// typed-hours box with its preview, and the header line.
class AvailabilityViewModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(State state READ state NOTIFY changed)
    Q_PROPERTY(int mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(bool focusMode READ focusMode NOTIFY modeChanged)
    Q_PROPERTY(QStringList modeTitles READ modeTitles CONSTANT)
    Q_PROPERTY(QString hint READ hint NOTIFY modeChanged)
    // "38 h/week bookable · 2 focus blocks"
    Q_PROPERTY(QString header READ header NOTIFY changed)
    // The week as a sentence the box reads back.
    Q_PROPERTY(QString description READ description NOTIFY changed)
    // The box's text, and "Will set …" for it (empty when nothing was understood).
    Q_PROPERTY(QString nl READ nl WRITE setNl NOTIFY nlChanged)
    Q_PROPERTY(QString preview READ preview NOTIFY nlChanged)
    // The hour marks of the grid's gutter, "6 AM" to "9 PM"; the columns' weekdays, Monday first.
    Q_PROPERTY(QStringList hourMarks READ hourMarks CONSTANT)
    Q_PROPERTY(QList<int> weekdays READ weekdays CONSTANT)

public:
    enum State { Editor, SignedOut, Loading };
    Q_ENUM(State)

    explicit AvailabilityViewModel(QObject *parent = nullptr);

    [[nodiscard]] State state() const;
    [[nodiscard]] int mode() const { return int(m_mode); }
    void setMode(int mode);
    [[nodiscard]] bool focusMode() const { return m_mode == Availability::Mode::focus; }
    [[nodiscard]] QStringList modeTitles() const;
    [[nodiscard]] QString hint() const { return Availability::hint(m_mode); }
    [[nodiscard]] QString header() const;
    [[nodiscard]] QString description() const;
    [[nodiscard]] const QString &nl() const { return m_nl; }
    void setNl(const QString &text);
    [[nodiscard]] QString preview() const;
    [[nodiscard]] QStringList hourMarks() const;
    [[nodiscard]] QList<int> weekdays() const { return Availability::columnOrder(); }

    // Sets the days the box names, empties it and says so; false when nothing was understood,
    // and the text stays.
    Q_INVOKABLE bool apply();

Q_SIGNALS:
    void modeChanged();
    void nlChanged();

private:
    Availability::Mode m_mode = Availability::Mode::hours;
    QString m_nl;
    QList<DayAvailability> m_nlPreview;
};

} // namespace quorvane
