#include "types/BufferPreviewModel.h"

namespace quorvane {

BufferPreviewModel::BufferPreviewModel(QObject *parent)
    : QAbstractListModel(parent)
{
    update();
}

int BufferPreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant BufferPreviewModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const std::optional<BufferPreview::Segment> &row = m_rows.at(index.row());
    // A missing buffer sits, empty, where the segment after it starts.
    double x = 0;
    if (row)
        x = row->x;
    else if (index.row() == 2 && m_rows.at(1))
        x = m_rows.at(1)->x + m_rows.at(1)->width;
    switch (role) {
    case ShownRole:
        return row.has_value();
    case XRole:
        return x;
    case WidthRole:
        return row ? row->width : 0.0;
    case LabelRole:
        return row ? row->label : QString();
    case MeetingRole:
        return index.row() == 1;
    default:
        return {};
    }
}

QHash<int, QByteArray> BufferPreviewModel::roleNames() const
{
    return {{ShownRole, "shown"},
            {XRole, "segmentX"},
            {WidthRole, "segmentWidth"},
            {LabelRole, "label"},
            {MeetingRole, "meeting"}};
}

#define QUORVANE_INPUT(Name, member)                                                                                   \
    void BufferPreviewModel::Name(decltype(member) value)                                                              \
    {                                                                                                                  \
        if (member == value)                                                                                           \
            return;                                                                                                    \
        member = value;                                                                                                \
        update();                                                                                                      \
        Q_EMIT inputChanged();                                                                                         \
    }
QUORVANE_INPUT(setBufferBefore, m_before)
QUORVANE_INPUT(setMinutes, m_minutes)
QUORVANE_INPUT(setBufferAfter, m_after)
QUORVANE_INPUT(setWidth, m_width)
#undef QUORVANE_INPUT

QString BufferPreviewModel::accessibleName() const
{
    return BufferPreview::accessibleLabel(m_before, m_minutes, m_after);
}

void BufferPreviewModel::update()
{
    QList<std::optional<BufferPreview::Segment>> rows(3);
    for (const BufferPreview::Segment &s : BufferPreview::segments(m_before, m_minutes, m_after, m_width))
        rows[int(s.part)] = s;
    if (rows == m_rows)
        return;
    m_rows = rows;
    Q_EMIT dataChanged(index(0), index(2));
}

} // namespace quorvane
