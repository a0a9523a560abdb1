#pragma once

#include "model/AppListModel.h"
#include "model/AppSection.h"

namespace quorvane {

// The sidebar's six section rows, with their badges: Today counts today's meetings,
// Bookings the upcoming ones, the others show none. Badges follow the snapshot and the clock.
class SectionListModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    enum Role {
        IdRole = Qt::UserRole + 1, // "sectionId" in QML, where "id" is taken
        TitleRole,
        SymbolRole,
        ShortcutRole, // the digit, "1" to "6"
        HintRole,     // "Shortcut Ctrl+1", for accessibility
        BadgeRole,    // 0 means no badge
    };
    Q_ENUM(Role)

    explicit SectionListModel(QObject *parent = nullptr);

    [[nodiscard]] static int badge(AppSection section, const AppModel &app);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // The row of a section id, or -1.
    Q_INVOKABLE int indexOf(const QString &id) const;
    // The section id of a row, or an empty text.
    Q_INVOKABLE QString idAt(int row) const;

protected:
    void rebuild() override;

private:
    QList<AppSection> m_sections;
};

} // namespace quorvane
