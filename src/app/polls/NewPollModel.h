#pragma once

#include "model/AppViewModel.h"

namespace quorvane {

// The new-poll sheet's title and type. Each opening starts again from the default type;
// "Create Poll" needs both, and a title of blanks counts.
class NewPollModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY changed)
    Q_PROPERTY(QString type READ type WRITE setType NOTIFY changed)
    Q_PROPERTY(bool canCreate READ canCreate NOTIFY changed)

public:
    explicit NewPollModel(QObject *parent = nullptr);

    [[nodiscard]] const QString &title() const { return m_title; }
    void setTitle(const QString &title);
    [[nodiscard]] const QString &type() const { return m_type; }
    void setType(const QString &type);
    [[nodiscard]] bool canCreate() const { return !m_title.isEmpty() && !m_type.isEmpty(); }

    // For a new opening: an empty title and the default type.
    Q_INVOKABLE void reset();
    // Asks the model to create the poll; the sheet closes at once and the outcome shows as a
    // toast or a banner.
    Q_INVOKABLE void create();

private:
    QString m_title;
    QString m_type;
};

} // namespace quorvane
