#pragma once

#include "model/AppListModel.h"

#include "HostSettings.h"

namespace quorvane {

// The booking rules under the grid: the four steppers as rows, each click one edit of the
// settings, and the host's time zone.
class RulesModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT
    // The stored zone, and as shown ("America/New York").
    Q_PROPERTY(QString timezone READ timezone NOTIFY timezoneChanged)
    Q_PROPERTY(QString timezoneName READ timezoneName NOTIFY timezoneChanged)

public:
    enum Role {
        LabelRole = Qt::UserRole + 1, // "Minimum notice: 1 h"
        NameRole,                     // the stepper's accessible name: "Minimum notice"
        ValueRole,
        CanDownRole,
        CanUpRole,
    };
    Q_ENUM(Role)

    struct Stepper {
        const char *name; // untranslated; the model translates it when shown
        int HostSettings::*field;
        int low;
        int high;
        int (*step)(int value);
        QString (*label)(int value);
    };
    // Minimum notice, max meetings per day, bookable days ahead, calendar alert.
    [[nodiscard]] static const QList<Stepper> &steppers();

    explicit RulesModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] QString timezone() const;
    [[nodiscard]] QString timezoneName() const;

    // One click of a stepper: direction below 0 is down.
    Q_INVOKABLE void step(int row, int direction);
    Q_INVOKABLE void setTimezone(const QString &zone);

Q_SIGNALS:
    void timezoneChanged();

protected:
    void rebuild() override;

private:
    QList<int> m_values;
    QString m_timezone;
};

} // namespace quorvane
