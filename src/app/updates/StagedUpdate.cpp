#include "updates/StagedUpdate.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace quorvane::StagedUpdate {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(StagedUpdate)
};

constexpr QFileDevice::Permissions ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

QString pendingIn(const QString &directory)
{
    return QDir(directory).filePath(u"quorvane.pending"_s);
}

QString previousOf(const QString &executable)
{
    return executable + u".previous"_s;
}

} // namespace

bool stage(const QString &directory, const QByteArray &bytes, QString *error)
{
    if (!QDir().mkpath(directory)) {
        if (error)
            *error = Text::tr("Couldn't create %1").arg(directory);
        return false;
    }
    QFile::setPermissions(directory, ownerOnly);
    QSaveFile file(pendingIn(directory));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.setPermissions(ownerOnly)
        || !file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

bool isStaged(const QString &directory)
{
    return QFile::exists(pendingIn(directory));
}

bool apply(const QString &executable, const QString &directory)
{
    const QString pending = pendingIn(directory);
    if (!QFile::exists(pending) || !QFile::exists(executable))
        return false;
    // The new file is copied next to the executable first, so that the swap is two renames
    // within one folder.
    const QString incoming = executable + u".incoming"_s;
    QFile::remove(incoming);
    if (!QFile::copy(pending, incoming)
        || !QFile::setPermissions(incoming, ownerOnly | QFileDevice::ReadGroup | QFileDevice::ExeGroup
                                                | QFileDevice::ReadOther | QFileDevice::ExeOther)) {
        QFile::remove(incoming);
        return false;
    }
    QFile::remove(previousOf(executable));
    if (!QFile::rename(executable, previousOf(executable))) {
        QFile::remove(incoming);
        return false;
    }
    if (!QFile::rename(incoming, executable)) {
        QFile::rename(previousOf(executable), executable);
        QFile::remove(incoming);
        return false;
    }
    QFile::remove(pending);
    return true;
}

void confirmStarted(const QString &executable)
{
    QFile::remove(previousOf(executable));
}

} // namespace quorvane::StagedUpdate
