#include "availability/DayColumnModel.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace quorvane {

using Availability::Target;

DayColumnModel::DayColumnModel(QObject *parent)
    : AppListModel({&AppModel::draftSettingsChanged}, parent)
{}

int DayColumnModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_blocks.size());
}

QVariant DayColumnModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Block &b = m_blocks.at(index.row());
    const bool dragged = m_gesture.dragging() && m_gesture.row() == index.row();
    const TimeRange shown = dragged ? *m_gesture.shown() : b.range;
    const auto look = [&](bool hover) { return Availability::look(shown, b.focus, hover, editable(b), dragged); };
    switch (role) {
    case FocusRole:
        return b.focus;
    case LabelRole:
        return b.label;
    case TooltipRole:
        return Availability::tooltip(shown);
    case AccessibleRole:
        return b.accessible;
    case EditableRole:
        return editable(b);
    case YRole:
        return Availability::yFor(shown.start);
    case HeightRole:
        return std::max(Availability::Grid::shortestDrawn,
                        Availability::yFor(shown.end) - Availability::yFor(shown.start));
    case ShowsLabelRole:
        return look(false).showsLabel;
    case FillRole:
        return look(false).fillOpacity;
    case HoverFillRole:
        return look(true).fillOpacity;
    case OutlineRole:
        return look(false).outlineWidth;
    case TintedTextRole:
        return look(false).tintedText;
    case OpacityRole:
        return look(false).opacity;
    default:
        return {};
    }
}

QHash<int, QByteArray> DayColumnModel::roleNames() const
{
    return {{FocusRole, "focusBlock"},      {LabelRole, "label"},           {TooltipRole, "tooltip"},
            {AccessibleRole, "accessible"}, {EditableRole, "editable"},     {YRole, "blockY"},
            {HeightRole, "blockHeight"},    {ShowsLabelRole, "showsLabel"}, {FillRole, "fill"},
            {HoverFillRole, "hoverFill"},   {OutlineRole, "outline"},       {TintedTextRole, "tintedText"},
            {OpacityRole, "blockOpacity"}};
}

void DayColumnModel::setWeekday(int weekday)
{
    if (weekday == m_weekday)
        return;
    m_weekday = weekday;
    rebuild();
    Q_EMIT weekdayChanged();
}

void DayColumnModel::setFocusMode(bool focus)
{
    if (focus == m_focusMode)
        return;
    m_focusMode = focus;
    m_gesture.cancel();
    if (!m_blocks.isEmpty())
        Q_EMIT dataChanged(index(0), index(int(m_blocks.size()) - 1));
    Q_EMIT focusModeChanged();
    Q_EMIT gestureChanged();
}

QString DayColumnModel::heading() const
{
    return Availability::dayName(m_weekday, app() ? app()->locale() : QString());
}

QString DayColumnModel::title() const
{
    return Availability::fullDayName(m_weekday, app() ? app()->locale() : QString());
}

bool DayColumnModel::drawing() const
{
    return m_gesture.target() == Target::background && m_gesture.dragging();
}

double DayColumnModel::drawY() const
{
    return drawing() ? Availability::yFor(m_gesture.shown()->start) : 0;
}

double DayColumnModel::drawHeight() const
{
    if (!drawing())
        return 0;
    const TimeRange &r = *m_gesture.shown();
    return std::max(Availability::Grid::shortestPreview, Availability::yFor(r.end) - Availability::yFor(r.start));
}

QString DayColumnModel::drawText() const
{
    return drawing() ? Availability::span(*m_gesture.shown()) : QString();
}

int DayColumnModel::dragRow() const
{
    return m_gesture.target() != Target::background && m_gesture.dragging() ? m_gesture.row() : -1;
}

void DayColumnModel::pressBackground(double x, double y)
{
    m_gesture.press(Target::background, -1, {}, {x, y});
}

bool DayColumnModel::pressBlock(int row, double x, double y)
{
    if (row < 0 || row >= m_blocks.size() || !editable(m_blocks.at(row)))
        return false;
    m_gesture.press(Target::block, row, m_blocks.at(row).range, {x, y});
    return true;
}

bool DayColumnModel::pressEdge(int row, bool bottom, double x, double y)
{
    if (row < 0 || row >= m_blocks.size() || !editable(m_blocks.at(row)))
        return false;
    m_gesture.press(bottom ? Target::endEdge : Target::startEdge, row, m_blocks.at(row).range, {x, y});
    return true;
}

void DayColumnModel::moveTo(double x, double y)
{
    const bool started = !m_gesture.dragging();
    if (!m_gesture.moveTo({x, y}))
        return;
    if (m_gesture.target() != Target::background)
        touchDragged(m_gesture.row());
    if (started || m_gesture.target() == Target::background)
        Q_EMIT gestureChanged();
}

void DayColumnModel::release()
{
    const Target target = m_gesture.target();
    const int row = m_gesture.row();
    const bool dragged = m_gesture.dragging();
    const std::optional<TimeRange> done = m_gesture.release();
    if (done && target == Target::background)
        commitAdd(*done);
    else if (done && row >= 0 && row < m_blocks.size())
        commit(m_blocks.at(row), *done);
    // A commit has already redrawn the rows from the settings; a drop in place goes back.
    if (!done && dragged && target != Target::background)
        touchDragged(row);
    if (dragged)
        Q_EMIT gestureChanged();
}

void DayColumnModel::cancel()
{
    const int row = dragRow();
    const bool dragged = m_gesture.dragging();
    m_gesture.cancel();
    if (row >= 0)
        touchDragged(row);
    if (dragged)
        Q_EMIT gestureChanged();
}

void DayColumnModel::remove(int row)
{
    if (!app() || row < 0 || row >= m_blocks.size())
        return;
    const Block b = m_blocks.at(row);
    if (b.focus)
        app()->editSettings([id = b.id](HostSettings &s) { Availability::removeFocus(s, id); });
    else
        app()->editSettings([w = m_weekday, ranges = m_ranges, i = b.index](HostSettings &s) {
            Availability::removeHours(s, w, ranges, i);
        });
}

void DayColumnModel::extend(int row)
{
    if (row >= 0 && row < m_blocks.size())
        commit(m_blocks.at(row), Availability::extended(m_blocks.at(row).range));
}

void DayColumnModel::shorten(int row)
{
    if (row >= 0 && row < m_blocks.size())
        commit(m_blocks.at(row), Availability::shortened(m_blocks.at(row).range));
}

void DayColumnModel::nudge(int row, int minutes)
{
    if (row < 0 || row >= m_blocks.size())
        return;
    const TimeRange moved = Availability::nudged(m_blocks.at(row).range, minutes);
    if (moved != m_blocks.at(row).range)
        commit(m_blocks.at(row), moved);
}

void DayColumnModel::commit(const Block &block, const TimeRange &range)
{
    if (!app())
        return;
    if (block.focus)
        app()->editSettings([id = block.id, range](HostSettings &s) { Availability::moveFocus(s, id, range); });
    else
        app()->editSettings([w = m_weekday, ranges = m_ranges, i = block.index, range](HostSettings &s) {
            Availability::replaceHours(s, w, ranges, i, range);
        });
}

void DayColumnModel::commitAdd(const TimeRange &range)
{
    if (!app())
        return;
    if (m_focusMode)
        app()->editSettings([w = m_weekday, range, id = QUuid::createUuid().toString(QUuid::WithoutBraces)](
                                HostSettings &s) { Availability::addFocus(s, w, range, id); });
    else
        app()->editSettings([w = m_weekday, ranges = m_ranges, range](HostSettings &s) {
            Availability::addHours(s, w, ranges, range);
        });
}

void DayColumnModel::touchDragged(int row)
{
    if (row >= 0 && row < m_blocks.size())
        Q_EMIT dataChanged(index(row), index(row),
                           {TooltipRole, YRole, HeightRole, ShowsLabelRole, FillRole, HoverFillRole, OutlineRole});
}

void DayColumnModel::rebuild()
{
    m_ranges.clear();
    QList<Block> next;
    if (app() && app()->draftSettings()) {
        const HostSettings &settings = *app()->draftSettings();
        const QString &locale = app()->locale();
        for (const DayAvailability &day : settings.availability) {
            if (day.weekday == m_weekday) {
                m_ranges = day.ranges;
                break;
            }
        }
        for (int i = 0; i < m_ranges.size(); ++i) {
            const TimeRange &r = m_ranges.at(i);
            next.append(
                {false, {}, i, r, Availability::span(r), Availability::hoursAccessibleLabel(m_weekday, r, locale)});
        }
        for (const FocusBlock &f : settings.focusBlocks) {
            if (f.weekday == m_weekday)
                next.append({true, f.id, -1, f.range, Availability::focusLabel(f),
                             Availability::focusAccessibleLabel(f, locale)});
        }
    }
    // A change from elsewhere that takes away or alters the block being dragged ends the drag.
    const int row = m_gesture.target() == Target::background ? -1 : m_gesture.row();
    if (m_gesture.pressed() && row >= 0 && (row >= next.size() || next.at(row) != m_blocks.value(row)))
        cancel();
    replaceRows(m_blocks, std::move(next));
}

} // namespace quorvane
