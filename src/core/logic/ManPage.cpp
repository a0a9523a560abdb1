#include "ManPage.h"

#include "BuildInfo.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace quorvane::ManPage {

namespace {

// Text for roff: backslashes and minus signs escaped, other characters than ASCII named, and a
// line that would start with a control character kept as text.
QString escaped(const QString &text)
{
    QString out;
    for (const QChar c : text) {
        if (c == u'\\')
            out += u"\\e"_s;
        else if (c == u'-')
            out += u"\\-"_s;
        else if (c.unicode() > 0x7e)
            out += u"\\[u"_s + QString::number(c.unicode(), 16).toUpper().rightJustified(4, u'0') + u']';
        else
            out += c;
    }
    if (out.startsWith(u'.') || out.startsWith(u'\''))
        out.prepend(u"\\&"_s);
    return out;
}

QString optionName(const QString &name)
{
    return (name.size() == 1 ? u"-"_s : u"--"_s) + name;
}

QList<QCommandLineOption> shown(const QList<QCommandLineOption> &options)
{
    QList<QCommandLineOption> out;
    for (const QCommandLineOption &option : options) {
        if (!option.flags().testFlag(QCommandLineOption::HiddenFromHelp))
            out.append(option);
    }
    return out;
}

// "\fB\-\-days\fR \fIN\fR" and "\fB\-h\fR, \fB\-\-help\fR".
QString optionTag(const QCommandLineOption &option)
{
    QStringList names;
    for (const QString &name : option.names())
        names.append(u"\\fB"_s + escaped(optionName(name)) + u"\\fR"_s);
    QString tag = names.join(u", "_s);
    if (!option.valueName().isEmpty())
        tag += u" \\fI"_s + escaped(option.valueName()) + u"\\fR"_s;
    return tag;
}

QString paragraphs(const QString &text)
{
    static const QRegularExpression tagged(u"^  (\\S+(?: \\S+)?)  +(.*)$"_s);
    QStringList out;
    for (const QString &paragraph : text.split(u"\n\n"_s, Qt::SkipEmptyParts)) {
        QStringList plain;
        for (const QString &line : paragraph.split(u'\n')) {
            const QRegularExpressionMatch match = tagged.match(line);
            if (match.hasMatch()) {
                out.append(u".TP\n\\fB"_s + escaped(match.captured(1)) + u"\\fR\n"_s + escaped(match.captured(2)));
            } else {
                plain.append(escaped(line.trimmed()));
            }
        }
        if (!plain.isEmpty())
            out.append(u".PP\n"_s + plain.join(u'\n'));
    }
    return out.join(u'\n');
}

QString optionList(const QList<QCommandLineOption> &options)
{
    QStringList out;
    for (const QCommandLineOption &option : shown(options))
        out.append(u".TP\n"_s + optionTag(option) + u'\n' + escaped(option.description()));
    return out.join(u'\n');
}

QString synopsis(const QString &name, const Usage &usage)
{
    QString line = u".B "_s + escaped(name);
    if (!usage.command.isEmpty())
        line += u"\n.B "_s + escaped(usage.command);
    if (const QString options = optionSynopsis(usage.options); !options.isEmpty())
        line += u'\n' + escaped(options);
    if (!usage.arguments.isEmpty())
        line += u"\n.I "_s + escaped(usage.arguments);
    return line;
}

} // namespace

QString optionSynopsis(const QList<QCommandLineOption> &options)
{
    QStringList out;
    for (const QCommandLineOption &option : shown(options)) {
        const QString name = optionName(option.names().constLast());
        out.append(u'[' + (option.valueName().isEmpty() ? name : name + u' ' + option.valueName()) + u']');
    }
    return out.join(u' ');
}

QString roff(const Page &page)
{
    const QString version = page.version.isEmpty() ? u"Quorvane "_s + QLatin1StringView(build::version) : page.version;
    QStringList out{u".TH %1 1 \"\" \"%2\" \"User Commands\""_s.arg(page.name.toUpper(), escaped(version)),
                    u".SH NAME"_s, escaped(page.name) + u" \\- "_s + escaped(page.summary), u".SH SYNOPSIS"_s};
    QStringList synopses;
    for (const Usage &usage : page.usages)
        synopses.append(synopsis(page.name, usage));
    out.append(synopses.join(u"\n.br\n"_s));
    out.append(u".SH DESCRIPTION"_s);
    out.append(paragraphs(page.description));
    if (page.usages.size() == 1) {
        out.append(u".SH OPTIONS"_s);
        out.append(optionList(page.usages.first().options));
    } else {
        out.append(u".SH COMMANDS"_s);
        for (const Usage &usage : page.usages) {
            out.append(u".SS "_s + escaped(usage.command));
            out.append(paragraphs(usage.description));
            if (const QString options = optionList(usage.options); !options.isEmpty())
                out.append(options);
        }
    }
    for (const Section &section : page.sections) {
        out.append(u".SH "_s + escaped(section.title));
        out.append(paragraphs(section.text));
    }
    return out.join(u'\n') + u'\n';
}

QCommandLineOption option()
{
    QCommandLineOption man(u"man"_s, u"Print the manual page in roff."_s);
    man.setFlags(QCommandLineOption::HiddenFromHelp);
    return man;
}

} // namespace quorvane::ManPage
