#pragma once

#include "types/BufferPreview.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace quorvane {

// The buffer bar's three segments for QML, always three rows (before, meeting, after) so that
// a segment that comes or goes animates instead of being made anew; a buffer of 0 minutes
// is a row that isn't shown, at width 0 where the next one starts.
class BufferPreviewModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int bufferBefore MEMBER m_before WRITE setBufferBefore NOTIFY inputChanged)
    Q_PROPERTY(int minutes MEMBER m_minutes WRITE setMinutes NOTIFY inputChanged)
    Q_PROPERTY(int bufferAfter MEMBER m_after WRITE setBufferAfter NOTIFY inputChanged)
    Q_PROPERTY(double width MEMBER m_width WRITE setWidth NOTIFY inputChanged)
    Q_PROPERTY(QString accessibleName READ accessibleName NOTIFY inputChanged)

public:
    enum Role {
        ShownRole = Qt::UserRole + 1,
        XRole,
        WidthRole,
        LabelRole,
        MeetingRole, // the meeting's segment, in the type's colour; the buffers are grey
    };
    Q_ENUM(Role)

    explicit BufferPreviewModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setBufferBefore(int value);
    void setMinutes(int value);
    void setBufferAfter(int value);
    void setWidth(double value);
    [[nodiscard]] QString accessibleName() const;

Q_SIGNALS:
    void inputChanged();

private:
    void update();

    int m_before = 0;
    int m_minutes = 0;
    int m_after = 0;
    double m_width = 0;
    QList<std::optional<BufferPreview::Segment>> m_rows{3};
};

} // namespace quorvane
