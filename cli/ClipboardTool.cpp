#include "ClipboardTool.h"

#include <QList>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace quorvane::cli::ClipboardTool {

namespace {

struct Tool {
    QString program;
    QStringList arguments;
};

// Each of these reads the text on its standard input and leaves a process behind that owns
// the clipboard until something else is copied.
QList<Tool> tools()
{
    QList<Tool> out;
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        out.append({u"wl-copy"_s, {u"--type"_s, u"text/plain;charset=utf-8"_s}});
    if (qEnvironmentVariableIsSet("DISPLAY")) {
        out.append({u"xclip"_s, {u"-selection"_s, u"clipboard"_s, u"-in"_s}});
        out.append({u"xsel"_s, {u"--clipboard"_s, u"--input"_s}});
    }
    return out;
}

} // namespace

QString copy(const QString &text)
{
    const QList<Tool> candidates = tools();
    if (candidates.isEmpty())
        return u"there is no graphical session (neither WAYLAND_DISPLAY nor DISPLAY is set)"_s;
    QStringList names;
    for (const Tool &tool : candidates) {
        names.append(tool.program);
        const QString path = QStandardPaths::findExecutable(tool.program);
        if (path.isEmpty())
            continue;
        QProcess process;
        // What stays behind must not hold on to our output, which a script may be reading.
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(path, tool.arguments);
        if (!process.waitForStarted(5000))
            continue;
        process.write(text.toUtf8());
        process.closeWriteChannel();
        if (process.waitForFinished(10'000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
            return {};
    }
    return u"copying needs one of: %1"_s.arg(names.join(u", "_s));
}

} // namespace quorvane::cli::ClipboardTool
