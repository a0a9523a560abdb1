#include "availability/RulesModel.h"

#include "availability/Availability.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(RulesModel)
};

int one(int)
{
    return 1;
}

int five(int)
{
    return 5;
}

QString notice(int v)
{
    return Text::tr("Minimum notice: %1").arg(Availability::fmtNotice(v));
}

QString perDay(int v)
{
    return Text::tr("Max meetings per day: %1").arg(v);
}

QString ahead(int v)
{
    return Text::tr("Bookable up to %1 days ahead").arg(v);
}

QString alert(int v)
{
    return Text::tr("Calendar alert: %1 min before").arg(v);
}

} // namespace

const QList<RulesModel::Stepper> &RulesModel::steppers()
{
    static const QList<Stepper> all{
        {QT_TRANSLATE_NOOP("RulesModel", "Minimum notice"), &HostSettings::minNoticeMinutes, 0, 10080,
         Availability::noticeStep, notice},
        {QT_TRANSLATE_NOOP("RulesModel", "Max meetings per day"), &HostSettings::maxMeetingsPerDay, 1, 20, one, perDay},
        {QT_TRANSLATE_NOOP("RulesModel", "Bookable days ahead"), &HostSettings::horizonDays, 1, 60, one, ahead},
        {QT_TRANSLATE_NOOP("RulesModel", "Calendar alert"), &HostSettings::alertMinutesBefore, 0, 120, five, alert},
    };
    return all;
}

RulesModel::RulesModel(QObject *parent)
    : AppListModel({&AppModel::draftSettingsChanged}, parent)
{}

int RulesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_values.size());
}

QVariant RulesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Stepper &s = steppers().at(index.row());
    const int v = m_values.at(index.row());
    switch (role) {
    case LabelRole:
        return s.label(v);
    case NameRole:
        return Text::tr(s.name);
    case ValueRole:
        return v;
    case CanDownRole:
        return v > s.low;
    case CanUpRole:
        return v < s.high;
    default:
        return {};
    }
}

QHash<int, QByteArray> RulesModel::roleNames() const
{
    return {{LabelRole, "label"},
            {NameRole, "name"},
            {ValueRole, "value"},
            {CanDownRole, "canDown"},
            {CanUpRole, "canUp"}};
}

QString RulesModel::timezone() const
{
    return m_timezone;
}

QString RulesModel::timezoneName() const
{
    return QString(m_timezone).replace(u'_', u' ');
}

void RulesModel::step(int row, int direction)
{
    if (!app() || row < 0 || row >= m_values.size())
        return;
    const Stepper &s = steppers().at(row);
    // The step follows the value at the moment of the click.
    const int value = m_values.at(row);
    const int next = Availability::stepped(value, direction, s.step(value), s.low, s.high);
    if (next == value)
        return;
    app()->editSettings([field = s.field, next](HostSettings &settings) { settings.*field = next; });
}

void RulesModel::setTimezone(const QString &zone)
{
    if (app() && !zone.isEmpty() && zone != m_timezone)
        app()->editSettings([zone](HostSettings &settings) { settings.timezone = zone; });
}

void RulesModel::rebuild()
{
    QList<int> next;
    QString zone;
    if (app() && app()->draftSettings()) {
        const HostSettings &settings = *app()->draftSettings();
        for (const Stepper &s : steppers())
            next << settings.*s.field;
        zone = settings.timezone;
    }
    replaceRows(m_values, std::move(next));
    if (zone != m_timezone) {
        m_timezone = zone;
        Q_EMIT timezoneChanged();
    }
}

} // namespace quorvane
