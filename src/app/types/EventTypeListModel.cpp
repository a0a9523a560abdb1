#include "types/EventTypeListModel.h"

#include "components/HexColor.h"
#include "types/EventTypes.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(EventTypeListModel)
};
} // namespace

EventTypeListModel::EventTypeListModel(QObject *parent)
    : AppListModel({&AppModel::draftSettingsChanged}, parent)
{}

void EventTypeListModel::rebuild()
{
    const std::optional<HostSettings> draft = app() ? app()->draftSettings() : std::nullopt;
    mergeRows(m_types, draft ? draft->eventTypes : QList<EventType>(), [](const EventType &t) { return t.id; });
    updateCurrent();
}

int EventTypeListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_types.size());
}

QVariant EventTypeListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const EventType &t = m_types.at(index.row());
    switch (role) {
    case IdRole:
        return t.id;
    case Qt::DisplayRole:
    case TitleRole:
        return t.title;
    case SubtitleRole:
        return EventTypes::subtitle(t);
    case ColorRole:
        return HexColor::parse(t.colorHex);
    case SymbolRole:
        return Location::symbol(t.location);
    case ActiveRole:
        return t.isActive;
    case AccessibleNameRole:
        return t.title + u", "_s + EventTypes::subtitle(t) + (t.isActive ? QString() : Text::tr(", Off"));
    default:
        return {};
    }
}

QHash<int, QByteArray> EventTypeListModel::roleNames() const
{
    return {{IdRole, "typeId"},
            {TitleRole, "title"},
            {SubtitleRole, "subtitle"},
            {ColorRole, "typeColor"},
            {SymbolRole, "symbol"},
            {ActiveRole, "active"},
            {AccessibleNameRole, "accessibleName"}};
}

void EventTypeListModel::setSelection(const QString &id)
{
    if (id == m_selection)
        return;
    m_selection = id;
    Q_EMIT selectionChanged();
    updateCurrent();
}

int EventTypeListModel::currentRow() const
{
    return m_currentRow;
}

bool EventTypeListModel::canDelete() const
{
    return m_canDelete;
}

void EventTypeListModel::updateCurrent()
{
    int row = -1;
    for (int i = 0; i < m_types.size() && row < 0; ++i) {
        if (m_types.at(i).id == m_selection)
            row = i;
    }
    const bool canDelete = row >= 0 && EventTypes::canDelete(m_types);
    if (row == m_currentRow && canDelete == m_canDelete)
        return;
    m_currentRow = row;
    m_canDelete = canDelete;
    Q_EMIT currentChanged();
}

void EventTypeListModel::add()
{
    if (!app())
        return;
    std::optional<EventType> made;
    app()->editSettings([&made](HostSettings &s) {
        made = EventTypes::added(s.eventTypes);
        s.eventTypes.append(*made);
    });
    if (made)
        setSelection(made->id);
}

void EventTypeListModel::duplicate(int row)
{
    if (!app() || !has(row))
        return;
    const EventType original = m_types.at(row);
    std::optional<EventType> copy;
    app()->editSettings([&](HostSettings &s) {
        copy = EventTypes::duplicated(original, s.eventTypes);
        s.eventTypes.append(*copy);
    });
    if (copy)
        setSelection(copy->id);
}

void EventTypeListModel::remove(int row)
{
    if (!app() || !has(row) || !EventTypes::canDelete(m_types))
        return;
    const QString id = m_types.at(row).id;
    app()->editSettings([&id](HostSettings &s) { EventTypes::remove(s.eventTypes, id); });
    setSelection(EventTypes::selectionAfterDelete(m_types, id).value_or(QString()));
}

void EventTypeListModel::move(int from, int to)
{
    if (!app() || !has(from) || !has(to) || from == to)
        return;
    // The rows are the draft's types, in its order.
    app()->editSettings([from, to](HostSettings &s) { EventTypes::move(s.eventTypes, from, to); });
}

void EventTypeListModel::moveCurrent(int by)
{
    if (m_currentRow >= 0)
        move(m_currentRow, m_currentRow + by);
}

void EventTypeListModel::copyLink(int row)
{
    if (app() && has(row))
        app()->copyLink(m_types.at(row));
}

void EventTypeListModel::selectRow(int row)
{
    if (has(row))
        setSelection(m_types.at(row).id);
}

void EventTypeListModel::selectFirstIfNone()
{
    if (m_selection.isEmpty() && !m_types.isEmpty())
        setSelection(m_types.first().id);
}

} // namespace quorvane
