#include "AutostartLoginItem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace quorvane {

namespace {

const QString entryName = QStringLiteral("com.peldrachen.quorvane.desktop");

// Reads one key of the [Desktop Entry] group; other groups (actions) may repeat its keys.
QString desktopEntryValue(const QByteArray &content, const QString &key)
{
    bool inMainGroup = false;
    for (const QByteArray &raw : content.split('\n')) {
        const QString line = QString::fromUtf8(raw).trimmed();
        if (line.startsWith(QLatin1Char('['))) {
            inMainGroup = line == QLatin1String("[Desktop Entry]");
            continue;
        }
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (inMainGroup && eq > 0 && line.left(eq).trimmed() == key)
            return line.mid(eq + 1).trimmed();
    }
    return {};
}

} // namespace

AutostartLoginItem::AutostartLoginItem()
    : AutostartLoginItem(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), currentExecutable())
{}

AutostartLoginItem::AutostartLoginItem(const QString &configHome, const QString &executable)
    : m_entryPath(QDir(configHome).filePath(QStringLiteral("autostart/") + entryName))
    , m_executable(executable)
{}

bool AutostartLoginItem::isEnabled() const
{
    QFile file(m_entryPath);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.readAll();
    // GNOME's and the XDG way of switching an entry off without deleting it.
    if (desktopEntryValue(content, QStringLiteral("Hidden")).compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return false;
    return desktopEntryValue(content, QStringLiteral("X-GNOME-Autostart-enabled"))
               .compare(QLatin1String("false"), Qt::CaseInsensitive)
           != 0;
}

bool AutostartLoginItem::set(bool enabled)
{
    if (!enabled)
        return !QFileInfo::exists(m_entryPath) || QFile::remove(m_entryPath);

    if (m_executable.isEmpty() || !QDir().mkpath(QFileInfo(m_entryPath).absolutePath()))
        return false;
    QSaveFile file(m_entryPath);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(entry());
    return file.commit();
}

QString AutostartLoginItem::currentExecutable()
{
    const QString appImage = qEnvironmentVariable("APPIMAGE");
    return appImage.isEmpty() ? QCoreApplication::applicationFilePath() : appImage;
}

QString AutostartLoginItem::execValue(const QString &program)
{
    static const QString reserved = QStringLiteral(" \t\n\"'\\><~|&;$*?#()`");
    QString arg = program;
    arg.replace(QLatin1Char('%'), QStringLiteral("%%"));
    if (std::any_of(arg.cbegin(), arg.cend(), [](QChar c) { return reserved.contains(c); })) {
        QString quoted;
        for (QChar c : std::as_const(arg)) {
            if (c == QLatin1Char('"') || c == QLatin1Char('`') || c == QLatin1Char('$') || c == QLatin1Char('\\'))
                quoted += QLatin1Char('\\');
            quoted += c;
        }
        arg = QLatin1Char('"') + quoted + QLatin1Char('"');
    }
    // The value itself is a desktop-entry string, with its own escapes on top.
    arg.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    arg.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    arg.replace(QLatin1Char('\t'), QStringLiteral("\\t"));
    return arg;
}

QByteArray AutostartLoginItem::entry() const
{
    const QString text = QStringLiteral("[Desktop Entry]\n"
                                        "Type=Application\n"
                                        "Name=Quorvane\n"
                                        "Comment=Your scheduling links, bookings and availability\n"
                                        "Exec=%1\n"
                                        "Icon=com.peldrachen.quorvane\n"
                                        "Terminal=false\n"
                                        "X-GNOME-Autostart-enabled=true\n")
                             .arg(execValue(m_executable));
    return text.toUtf8();
}

} // namespace quorvane
