#include "settings/CalendarSettingsModel.h"

#include "model/AppModel.h"
#include "settings/Settings.h"

namespace quorvane {

namespace {
const QList<AppBinding::Signal> followed{&AppModel::snapshotChanged, &AppModel::draftSettingsChanged};
} // namespace

CalendarSettingsModel::CalendarSettingsModel(QObject *parent)
    : AppViewModel(followed, parent)
{}

QList<CalendarItem> CalendarSettingsModel::calendars(const AppModel *app)
{
    if (!app || !app->snapshot().google || !app->snapshot().google->calendars)
        return {};
    return *app->snapshot().google->calendars;
}

bool CalendarSettingsModel::connected() const
{
    return m_app && m_app->googleConnected();
}

QString CalendarSettingsModel::statusText() const
{
    return m_app ? Settings::connectionText(connected(), m_app->snapshot().google) : QString();
}

QString CalendarSettingsModel::error() const
{
    return m_app ? Settings::calendarError(m_app->snapshot().google) : QString();
}

bool CalendarSettingsModel::showsCalendars() const
{
    return connected() && !calendars(m_app).isEmpty() && m_app->draftSettings().has_value();
}

int CalendarSettingsModel::bookingIndex() const
{
    if (!showsCalendars())
        return -1;
    return Settings::bookingChoice(Settings::writable(calendars(m_app)), m_app->draftSettings()->bookingCalendarID);
}

bool CalendarSettingsModel::addMeet() const
{
    return m_app && m_app->draftSettings() && m_app->draftSettings()->addMeet;
}

void CalendarSettingsModel::setAddMeet(bool on)
{
    if (m_app && m_app->draftSettings() && on != addMeet())
        m_app->editSettings([on](HostSettings &s) { s.addMeet = on; });
}

void CalendarSettingsModel::chooseBooking(int index)
{
    const QList<CalendarItem> choices = Settings::writable(calendars(m_app));
    if (!showsCalendars() || index < 0 || index >= choices.size())
        return;
    const QString key = Settings::calendarKey(choices.at(index));
    if (key != m_app->draftSettings()->bookingCalendarID)
        m_app->editSettings([key](HostSettings &s) { s.bookingCalendarID = key; });
}

void CalendarSettingsModel::connectCalendar()
{
    if (m_app)
        m_app->connectGoogle();
}

CalendarListModel::CalendarListModel(QObject *parent)
    : AppListModel(followed, parent)
{}

void CalendarListModel::setWritableOnly(bool on)
{
    if (on == m_writableOnly)
        return;
    m_writableOnly = on;
    Q_EMIT writableOnlyChanged();
    rebuild();
}

void CalendarListModel::rebuild()
{
    QList<Row> next;
    const AppModel *model = app();
    if (model && model->draftSettings()) {
        const QList<CalendarItem> all = CalendarSettingsModel::calendars(model);
        for (const CalendarItem &c : m_writableOnly ? Settings::writable(all) : all)
            next.append({c, Settings::checksConflicts(*model->draftSettings(), c)});
    }
    mergeRows(m_rows, std::move(next), [](const Row &row) { return row.calendar.id; });
}

int CalendarListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant CalendarListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case KeyRole:
        return Settings::calendarKey(row.calendar);
    case LabelRole:
    case Qt::DisplayRole:
        return Settings::calendarLabel(row.calendar);
    case OnRole:
        return row.on;
    default:
        return {};
    }
}

QHash<int, QByteArray> CalendarListModel::roleNames() const
{
    return {{KeyRole, "key"}, {LabelRole, "label"}, {OnRole, "conflicts"}};
}

void CalendarListModel::setChecked(int row, bool on)
{
    AppModel *model = app();
    if (!model || row < 0 || row >= m_rows.size())
        return;
    const CalendarItem calendar = m_rows.at(row).calendar;
    model->editSettings([&](HostSettings &s) { Settings::setChecksConflicts(s, calendar, on); });
}

} // namespace quorvane
