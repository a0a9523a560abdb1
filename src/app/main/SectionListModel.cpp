#include "main/SectionListModel.h"

#include <QCoreApplication>
#include <QKeySequence>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(SectionListModel)
};
} // namespace

SectionListModel::SectionListModel(QObject *parent)
    : AppListModel({&AppModel::snapshotChanged, &AppModel::ticked}, parent)
    , m_sections(Section::allCases())
{}

// The sections stay; only their badges move with the snapshot and the clock.
void SectionListModel::rebuild()
{
    replaceRows(m_sections, Section::allCases(), {BadgeRole});
}

int SectionListModel::badge(AppSection section, const AppModel &app)
{
    switch (section) {
    case AppSection::today:
        return int(app.today().size());
    case AppSection::bookings:
        return int(app.upcomingCount());
    default:
        return 0;
    }
}

int SectionListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_sections.size());
}

QVariant SectionListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const AppSection section = m_sections.at(index.row());
    switch (role) {
    case IdRole:
        return Section::id(section);
    case Qt::DisplayRole:
    case TitleRole:
        return Section::title(section);
    case SymbolRole:
        return Section::symbol(section);
    case ShortcutRole:
        return Section::shortcut(section);
    case HintRole: {
        const QKeySequence keys(u"Ctrl+"_s + Section::shortcut(section));
        return Text::tr("Shortcut %1").arg(keys.toString(QKeySequence::NativeText));
    }
    case BadgeRole:
        return app() ? badge(section, *app()) : 0;
    default:
        return {};
    }
}

QHash<int, QByteArray> SectionListModel::roleNames() const
{
    return {{IdRole, "sectionId"},      {TitleRole, "title"}, {SymbolRole, "symbol"},
            {ShortcutRole, "shortcut"}, {HintRole, "hint"},   {BadgeRole, "badge"}};
}

int SectionListModel::indexOf(const QString &id) const
{
    const std::optional<AppSection> section = Section::fromId(id);
    return section ? int(m_sections.indexOf(*section)) : -1;
}

QString SectionListModel::idAt(int row) const
{
    return row >= 0 && row < m_sections.size() ? Section::id(m_sections.at(row)) : QString();
}

} // namespace quorvane
