#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// What the main window's menus show beyond fixed words: shortcuts in this desktop's own
// writing, and the maker's items of the Help menu as this build was configured.
class AppMenuModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString madeBy READ madeBy CONSTANT)
    // Empty when the build names no site, or one the app may not open.
    Q_PROPERTY(QUrl makerSite READ makerSite CONSTANT)
    Q_PROPERTY(QString makerSiteTitle READ makerSiteTitle CONSTANT)

public:
    explicit AppMenuModel(QObject *parent = nullptr);
    AppMenuModel(const QString &makerName, const QString &makerSite, QObject *parent = nullptr);

    [[nodiscard]] const QString &madeBy() const { return m_madeBy; }
    [[nodiscard]] const QUrl &makerSite() const { return m_makerSite; }
    [[nodiscard]] const QString &makerSiteTitle() const { return m_makerSiteTitle; }

    // A key sequence ("Ctrl+Shift+S", "Ctrl+,") as the desktop writes it; empty for none.
    Q_INVOKABLE static QString shortcutText(const QString &sequence);
    // The Go menu's key for a section's digit: "Ctrl+3".
    Q_INVOKABLE static QString sectionShortcut(const QString &digit);

private:
    QString m_madeBy;
    QUrl m_makerSite;
    QString m_makerSiteTitle;
};

} // namespace quorvane
