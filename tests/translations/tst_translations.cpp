// Translations: the pseudo translation keeps what a text needs, the program installs its
// translations, and no user-visible text is left out of the translators' file.
#include "Pseudo.h"
#include "Translations.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace quorvane;

namespace {

// A literal that reads as words for people: a capitalised word alone or starting a phrase,
// or two words.
const QRegularExpression words(uR"(^[A-Z][a-z]+(?:$|[ ,.:;!?…'])|[A-Za-z]{2,} [a-z]{2,})"_s);
// Names that stay as they are in every language (the keys are named as QKeySequence names
// them), and names for programs, not people.
const QStringList names{
    u"Quorvane"_s, u"quorvane --share"_s, u"Google Meet"_s, u"Linux"_s, u"Fusion"_s, u"Activated"_s, u"Response"_s,
    u"Notify"_s,   u"Hidden"_s,           u"Ctrl"_s,        u"Alt"_s,   u"Super"_s,  u"Shift"_s,     u"Read"_s};
const QRegularExpression moduleName(uR"(^Quorvane\.[A-Z]\w*$)"_s);
// Text no person reads in the program's own language: command-line help (English, like the
// manual pages made from it), the self-test's report, the hours sentence that the English
// parser reads back, decoding diagnostics, the keyring item's label, which must stay
// findable, the manual pages, and what the app answers on the session bus, which programs read.
const QStringList untranslatedFiles{
    u"src/app/shell/LaunchOptions.cpp"_s,
    u"src/app/shell/SelfTest.cpp"_s,
    u"src/core/logic/WeekSentence.cpp"_s,
    u"src/core/logic/NLAvailability.cpp"_s,
    u"src/core/records/"_s,
    u"src/core/api/NetworkTransport.cpp"_s,
    u"src/core/api/Keychain.h"_s,
    u"src/core/logic/ManPage.cpp"_s,
    u"src/platform/linux/DBusApplication.cpp"_s,
};

const QRegularExpression qmlTextProperty(
    uR"(\b(?:text|title|placeholderText|placeholderTitle|Accessible\.name|Accessible\.description|ToolTip\.text|label|message|actionText|subtitle)\s*:(.*)$)"_s);
const QRegularExpression qmlTranslated(uR"re((?:qsTr|QT_TR_NOOP)\(\s*"(?:[^"\\]|\\.)*")re"_s);
const QRegularExpression quoted(uR"re("((?:[^"\\]|\\.)*)")re"_s);
const QRegularExpression cppLiteral(
    uR"re((?:\bu"((?:[^"\\]|\\.)*)"|QStringLiteral\("((?:[^"\\]|\\.)*)"\)|"((?:[^"\\]|\\.)*)"_L1|QLatin1String(?:View)?\("((?:[^"\\]|\\.)*)"\)))re"_s);

bool forPeople(const QString &literal)
{
    return words.match(literal).hasMatch() && !names.contains(literal) && !moduleName.match(literal).hasMatch();
}

QString withoutComment(const QString &line)
{
    const qsizetype at = line.indexOf(QRegularExpression(uR"((^|\s)//)"_s));
    return at < 0 ? line : line.left(at);
}

// Every line of the program's sources with a text for people outside the translation calls;
// `read` counts the files looked at.
QStringList untranslated(int &read)
{
    const QString root = qEnvironmentVariable("QUORVANE_SOURCE_DIR");
    QStringList out;
    QDirIterator files(root + u"/src"_s, {u"*.qml"_s, u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString relative = path.mid(root.size() + 1);
        if (std::any_of(untranslatedFiles.begin(), untranslatedFiles.end(),
                        [&](const QString &skip) { return relative.startsWith(skip); }))
            continue;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        ++read;
        const bool qml = path.endsWith(u".qml"_s);
        int number = 0;
        while (!file.atEnd()) {
            ++number;
            const QString line = withoutComment(QString::fromUtf8(file.readLine()));
            QStringList literals;
            if (qml) {
                const QRegularExpressionMatch property = qmlTextProperty.match(line);
                QString value = property.captured(1);
                value.remove(qmlTranslated);
                for (auto it = quoted.globalMatch(value); it.hasNext();)
                    literals << it.next().captured(1);
            } else {
                for (auto it = cppLiteral.globalMatch(line); it.hasNext();) {
                    const QRegularExpressionMatch m = it.next();
                    for (int group = 1; group <= 4; ++group)
                        literals << m.captured(group);
                }
            }
            for (const QString &literal : std::as_const(literals)) {
                if (forPeople(literal))
                    out << u"%1:%2: \"%3\""_s.arg(relative).arg(number).arg(literal);
            }
        }
    }
    return out;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Translations::install(u"en"_s); }

    void pseudoKeepsWhatTheTextNeeds_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("kept");
        QTest::newRow("word") << u"Today"_s << QStringList{};
        QTest::newRow("placeholders") << u"%1 with %2 in %L3 min"_s << QStringList{u"%1"_s, u"%2"_s, u"%L3"_s};
        QTest::newRow("plural") << u"%n item(s)"_s << QStringList{u"%n"_s};
        QTest::newRow("mnemonic") << u"&Edit"_s << QStringList{u"&E"_s};
        QTest::newRow("markup") << u"<b>Done</b> &amp; dusted"_s << QStringList{u"<b>"_s, u"</b>"_s, u"&amp;"_s};
        QTest::newRow("line break") << u"Hi %1,\nsee you"_s << QStringList{u"%1"_s, u",\n"_s};
        QTest::newRow("long") << u"Where the desktop has no global shortcut service, bind a key to this command."_s
                              << QStringList{};
    }
    void pseudoKeepsWhatTheTextNeeds()
    {
        QFETCH(QString, source);
        QFETCH(QStringList, kept);
        const QString pseudo = Pseudo::text(source);
        QVERIFY2(pseudo.startsWith(u'[') && pseudo.endsWith(u']'), qPrintable(pseudo));
        // About a third longer, so a label sized to its English text shows its cut-off end.
        QVERIFY2(pseudo.size() >= source.size() * 4 / 3, qPrintable(pseudo));
        for (const QString &token : kept)
            QVERIFY2(pseudo.contains(token), qPrintable(pseudo + u" lost "_s + token));
        // No vowel outside what is kept reads as English any more.
        QString rest = pseudo;
        for (const QString &token : kept)
            rest.remove(token);
        QVERIFY2(!rest.contains(QRegularExpression(u"[aeiouAEIOU]"_s)), qPrintable(pseudo));
        QCOMPARE(Pseudo::text(QString()), QString());
    }

    void pseudoTranslatesEveryMessage()
    {
        QByteArray ts = R"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context><name>Bookings</name>
  <message><source>Upcoming</source><translation type="unfinished"></translation></message>
  <message numerus="yes"><source>%n item(s)</source>
    <translation><numerusform>%n item</numerusform><numerusform>%n items</numerusform></translation></message>
</context>
</TS>
)";
        QBuffer in(&ts);
        QByteArray written;
        QBuffer out(&written);
        QVERIFY(in.open(QIODevice::ReadOnly) && out.open(QIODevice::WriteOnly));
        QString error;
        QVERIFY2(Pseudo::translate(in, out, &error), qPrintable(error));

        QXmlStreamReader xml(written);
        QStringList translations;
        bool numerus = false;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == "message"_L1)
                numerus = xml.attributes().value(u"numerus"_s) == "yes"_L1;
            else if (xml.name() == "numerusform"_L1 || (xml.name() == "translation"_L1 && !numerus))
                translations << xml.readElementText();
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QCOMPARE(translations,
                 (QStringList{Pseudo::text(u"Upcoming"_s), Pseudo::text(u"%n item"_s), Pseudo::text(u"%n items"_s)}));

        QByteArray broken = "<TS><context>";
        QBuffer bad(&broken);
        QVERIFY(bad.open(QIODevice::ReadOnly));
        QBuffer sink;
        QVERIFY(sink.open(QIODevice::WriteOnly));
        QVERIFY(!Pseudo::translate(bad, sink, &error));
    }

    // English keeps its plural forms; another language replaces the texts, and one without a
    // translation leaves them English.
    void installsTheLanguage()
    {
        const auto votes = [](int n) {
            return QCoreApplication::translate("PollOptionsModel", "%1, %n vote(s)", nullptr, n).arg(u"9 AM"_s);
        };
        QCOMPARE(Translations::install(u"en"_s), QString());
        QCOMPARE(votes(1), u"9 AM, 1 vote"_s);
        QCOMPARE(votes(2), u"9 AM, 2 votes"_s);
        QCOMPARE(QCoreApplication::translate("MainWindowText", "Offline"), u"Offline"_s);

        QVERIFY(!Translations::install(u"pseudo"_s).isEmpty());
        QCOMPARE(QCoreApplication::translate("MainWindowText", "Offline"), Pseudo::text(u"Offline"_s));
        QCOMPARE(votes(2), Pseudo::text(u"%1, %n votes"_s).replace(u"%n"_s, u"2"_s).arg(u"9 AM"_s));

        QCOMPARE(Translations::install(u"de_DE"_s), QString());
        QCOMPARE(QCoreApplication::translate("MainWindowText", "Offline"), u"Offline"_s);
        QCOMPARE(votes(1), u"9 AM, 1 vote"_s);
    }

    void everyVisibleTextIsTranslatable()
    {
        int read = 0;
        const QStringList found = untranslated(read);
        QVERIFY2(read > 100, "the sources weren't found: QUORVANE_SOURCE_DIR");
        QVERIFY2(found.isEmpty(),
                 qPrintable(u"texts for people outside qsTr()/tr(); wrap them (see CONTRIBUTING.md):\n"_s
                            + found.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
