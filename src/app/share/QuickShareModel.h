#pragma once

#include "model/AppViewModel.h"
#include "share/ShareDaysModel.h"

#include "Cancellation.h"
#include "Records.h"

#include <QCoroTask>
#include <QStringList>

#include <optional>

namespace quorvane {

// Share Times: the host's open times for one event type, up to three picks, and the message
// that offers them. Every opening starts afresh; a failed fetch stays in this window, and
// only the latest fetch's answer stands.
class QuickShareModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList typeChoices READ typeChoices NOTIFY changed)
    Q_PROPERTY(int typeIndex READ typeIndex WRITE setTypeIndex NOTIFY changed)
    Q_PROPERTY(QString typeSlug READ typeSlug WRITE setTypeSlug NOTIFY changed)
    Q_PROPERTY(QStringList zoneChoices READ zoneChoices NOTIFY changed)
    Q_PROPERTY(QString zone READ zone WRITE setZone NOTIFY changed)
    Q_PROPERTY(bool loading READ loading NOTIFY changed)
    Q_PROPERTY(bool hasError READ hasError NOTIFY changed)
    Q_PROPERTY(QString error READ error NOTIFY changed)
    Q_PROPERTY(bool hasSlots READ hasSlots NOTIFY changed)
    Q_PROPERTY(QString link READ link NOTIFY changed)
    Q_PROPERTY(int pickedCount READ pickedCount NOTIFY changed)
    Q_PROPERTY(QString preview READ preview NOTIFY changed)
    Q_PROPERTY(QString hint READ hint CONSTANT)
    Q_PROPERTY(QString copyKeyText READ copyKeyText CONSTANT)
    Q_PROPERTY(quorvane::ShareDaysModel *days READ days CONSTANT)

public:
    explicit QuickShareModel(QObject *parent = nullptr);
    ~QuickShareModel() override;

    [[nodiscard]] QStringList typeChoices() const;
    [[nodiscard]] int typeIndex() const;
    void setTypeIndex(int index);
    [[nodiscard]] const QString &typeSlug() const { return m_typeSlug; }
    // A change of type fetches that type's times, giving up on a fetch still under way.
    void setTypeSlug(const QString &slug);
    [[nodiscard]] const QStringList &zoneChoices() const { return m_zoneChoices; }
    [[nodiscard]] const QString &zone() const { return m_zone; }
    void setZone(const QString &zone);
    [[nodiscard]] bool loading() const { return m_loading; }
    [[nodiscard]] bool hasError() const { return m_error.has_value(); }
    [[nodiscard]] QString error() const { return m_error.value_or(QString()); }
    [[nodiscard]] const QList<Slot> &slots() const { return m_slots; }
    [[nodiscard]] bool hasSlots() const { return !m_slots.isEmpty(); }
    [[nodiscard]] const QString &link() const { return m_link; }
    [[nodiscard]] const QList<Slot> &picked() const { return m_picked; }
    [[nodiscard]] int pickedCount() const { return int(m_picked.size()); }
    [[nodiscard]] QString preview() const;
    [[nodiscard]] static QString hint();
    // "Ctrl+C", as this desktop writes it.
    [[nodiscard]] static QString copyKeyText();
    [[nodiscard]] ShareDaysModel *days() const { return m_days; }

    // A new opening: nothing picked, the machine's zone, the default type and its times.
    Q_INVOKABLE void open();
    // The window closed: a fetch under way is given up.
    Q_INVOKABLE void close();
    // Fetches the chosen type's times again.
    Q_INVOKABLE void load();
    // A chip pressed; a fourth pick beeps and changes nothing.
    Q_INVOKABLE void toggle(int day, int chip);
    void toggle(const Slot &slot);
    Q_INVOKABLE void suggestBest();
    Q_INVOKABLE void copyLink();
    // Copies the message; true when there was one to copy, and the window may close.
    Q_INVOKABLE bool copyTimes();

Q_SIGNALS:
    // A pick was refused: there are three already.
    void refused();

private:
    QCoro::Task<> fetch(QuorvaneAPI api, QString slug, QString tz, quint64 generation);
    void setPicked(QList<Slot> picked);
    void rebuildDays();
    [[nodiscard]] std::optional<EventType> type() const;
    [[nodiscard]] QString typeLink() const;

    QString m_typeSlug;
    QString m_zone;
    QStringList m_zoneChoices;
    QList<Slot> m_slots;
    QList<Slot> m_picked;
    bool m_loading = false;
    std::optional<QString> m_error;
    QString m_link;
    ShareDaysModel *m_days;
    std::optional<Cancellation> m_fetch;
    quint64 m_generation = 0;
};

} // namespace quorvane
