// The worked-out words of the sign-in panel, the first-run guide and About.
#include "About.h"
#include "AboutModel.h"
#include "KeyLabel.h"
#include "LinkListModel.h"
#include "OnboardingText.h"
#include "SignInText.h"
#include "UrlOpener.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

using Links = QList<LinkListModel::Link>;
Q_DECLARE_METATYPE(Links)
Q_DECLARE_METATYPE(std::optional<Account>)
Q_DECLARE_METATYPE(AboutConfig)

namespace {

AboutConfig fullConfig()
{
    return {.version = u"2.0"_s,
            .build = u"200"_s,
            .site = u"https://quorvane.app"_s,
            .privacy = u"https://quorvane.app/privacy"_s,
            .terms = u"https://quorvane.app/terms"_s,
            .makerName = u"Ilvane Dorsk"_s,
            .makerSite = u"https://www.dorsk.dev/"_s,
            .makerProfile = u"https://www.linkedin.com/in/dorsk"_s,
            .makerMail = u"hello@dorsk.dev"_s,
            .legal = u"© 2026 Ilvane Dorsk"_s};
}

QStringList titles(const Links &links)
{
    QStringList out;
    for (const LinkListModel::Link &link : links)
        out.append(link.title);
    return out;
}

} // namespace

class SetupTextsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void spokenCode_data();
    void spokenCode();
    void keyLabel_data();
    void keyLabel();
    void guideButtons_data();
    void guideButtons();
    void guideTips();
    void signedInLabel_data();
    void signedInLabel();
    void versionLine_data();
    void versionLine();
    void productLinks_data();
    void productLinks();
    void authorLinks_data();
    void authorLinks();
    void linkModel();
};

void SetupTextsTest::spokenCode_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("letters and digits") << u"WXYZ-1234"_s << u"Code W X Y Z - 1 2 3 4"_s;
    QTest::newRow("repeated characters stay apart") << u"AA11"_s << u"Code A A 1 1"_s;
    QTest::newRow("blanks in the code add no pauses") << u"AB CD"_s << u"Code A B C D"_s;
    QTest::newRow("no code yet") << QString() << u"Code"_s;
}

void SetupTextsTest::spokenCode()
{
    QFETCH(QString, code);
    QFETCH(QString, spoken);
    QCOMPARE(SignInText::spokenCode(code), spoken);
}

void SetupTextsTest::keyLabel_data()
{
    QTest::addColumn<QKeySequence>("keys");
    QTest::addColumn<QString>("label");
    QTest::newRow("palette") << QKeySequence(Qt::ControlModifier | Qt::Key_K) << u"Ctrl+K"_s;
    QTest::newRow("join") << QKeySequence(Qt::ControlModifier | Qt::ShiftModifier | Qt::Key_J) << u"Ctrl+Shift+J"_s;
    // Qt would write "Meta+Ctrl+Alt+S".
    QTest::newRow("share hot key") << QKeySequence(Qt::MetaModifier | Qt::ControlModifier | Qt::AltModifier | Qt::Key_S)
                                   << u"Ctrl+Alt+Super+S"_s;
    QTest::newRow("named key") << QKeySequence(Qt::ControlModifier | Qt::Key_Comma) << u"Ctrl+,"_s;
    QTest::newRow("only the first combination") << QKeySequence(u"Ctrl+K, Ctrl+J"_s) << u"Ctrl+K"_s;
    QTest::newRow("no key") << QKeySequence() << QString();
}

void SetupTextsTest::keyLabel()
{
    QFETCH(QKeySequence, keys);
    QFETCH(QString, label);
    QCOMPARE(KeyLabel::text(keys), label);
}

void SetupTextsTest::guideButtons_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("dots");
    QTest::addColumn<QString>("primary");
    QTest::newRow("welcome") << 0 << u"Step 1 of 4"_s << u"Continue"_s;
    QTest::newRow("sign-in") << 1 << u"Step 2 of 4"_s << u"Continue"_s;
    QTest::newRow("one before the last") << 2 << u"Step 3 of 4"_s << u"Continue"_s;
    QTest::newRow("last") << 3 << u"Step 4 of 4"_s << u"Get Started"_s;
    QTest::newRow("past the last") << 4 << u"Step 5 of 4"_s << u"Get Started"_s;
}

void SetupTextsTest::guideButtons()
{
    QFETCH(int, step);
    QFETCH(QString, dots);
    QFETCH(QString, primary);
    QCOMPARE(OnboardingText::stepLabel(step, 4), dots);
    QCOMPARE(OnboardingText::primaryLabel(step, 4), primary);
}

void SetupTextsTest::guideTips()
{
    QCOMPARE(OnboardingText::paletteTip(), u"Ctrl+K opens the command palette"_s);
    QCOMPARE(OnboardingText::shareTip(), u"Ctrl+Alt+Super+S shares a few open times from anywhere"_s);
}

void SetupTextsTest::signedInLabel_data()
{
    QTest::addColumn<std::optional<Account>>("account");
    QTest::addColumn<QString>("label");
    Account account;
    account.email = u"ada@example.com"_s;
    account.name = u"Ada <b>Lovelace</b>"_s;
    QTest::newRow("signed in: the email, not the name") << std::optional(account) << u"Signed in as ada@example.com"_s;
    QTest::newRow("no account yet") << std::optional<Account>() << QString();
}

void SetupTextsTest::signedInLabel()
{
    QFETCH(std::optional<Account>, account);
    QFETCH(QString, label);
    QCOMPARE(OnboardingText::signedInLabel(account), label);
}

void SetupTextsTest::versionLine_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("build");
    QTest::addColumn<QString>("line");
    QTest::newRow("both") << u"2.0"_s << u"200"_s << u"Version 2.0 (200)"_s;
    QTest::newRow("no build number") << u"2.0.1"_s << QString() << u"Version 2.0.1"_s;
    QTest::newRow("no version") << QString() << u"200"_s << u"Version 2.0 (200)"_s;
}

void SetupTextsTest::versionLine()
{
    QFETCH(QString, version);
    QFETCH(QString, build);
    QFETCH(QString, line);
    QCOMPARE(About::versionLine(version, build), line);
}

void SetupTextsTest::productLinks_data()
{
    QTest::addColumn<AboutConfig>("config");
    QTest::addColumn<QStringList>("titles");
    const AboutConfig full = fullConfig();
    QTest::newRow("all configured") << full << QStringList{u"Website"_s, u"Privacy"_s, u"Terms"_s};
    AboutConfig noPrivacy = full;
    noPrivacy.privacy.clear();
    QTest::newRow("privacy not configured") << noPrivacy << QStringList{u"Website"_s, u"Terms"_s};
    AboutConfig unsafe = full;
    unsafe.site = u"file:///etc/passwd"_s;
    unsafe.terms = u"javascript:alert(1)"_s;
    QTest::newRow("targets the app may not open") << unsafe << QStringList{u"Privacy"_s};
    QTest::newRow("nothing configured") << AboutConfig() << QStringList();
}

void SetupTextsTest::productLinks()
{
    QFETCH(AboutConfig, config);
    QFETCH(QStringList, titles);
    const Links links = About::productLinks(config);
    QCOMPARE(::titles(links), titles);
    for (const LinkListModel::Link &link : links)
        QVERIFY2(UrlOpener::allows(link.url), qPrintable(link.url.toString()));
}

void SetupTextsTest::authorLinks_data()
{
    QTest::addColumn<AboutConfig>("config");
    QTest::addColumn<Links>("links");
    const AboutConfig full = fullConfig();
    QTest::newRow("all configured") << full
                                    << Links{{u"dorsk.dev"_s, QUrl(u"https://www.dorsk.dev/"_s)},
                                             {u"LinkedIn"_s, QUrl(u"https://www.linkedin.com/in/dorsk"_s)},
                                             {u"Quorvane"_s, QUrl(u"https://quorvane.app"_s)},
                                             {u"Contact"_s, QUrl(u"mailto:hello@dorsk.dev"_s)}};
    AboutConfig plain = full;
    plain.makerSite = u"http://dorsk.example:8080/about"_s;
    plain.makerProfile.clear();
    plain.site.clear();
    QTest::newRow("site without www, two not configured")
        << plain << Links{{u"dorsk.example"_s, QUrl(u"http://dorsk.example:8080/about"_s)},
                          {u"Contact"_s, QUrl(u"mailto:hello@dorsk.dev"_s)}};
    AboutConfig badMail = full;
    badMail.makerSite = u"not a site"_s;
    badMail.makerMail = u"javascript:alert(1)//@x"_s;
    QTest::newRow("a site without host, an address that isn't one")
        << badMail << Links{{u"LinkedIn"_s, QUrl(u"https://www.linkedin.com/in/dorsk"_s)},
                            {u"Quorvane"_s, QUrl(u"https://quorvane.app"_s)}};
    AboutConfig noAt = full;
    noAt.makerMail = u"dorsk.dev"_s;
    noAt.makerSite.clear();
    noAt.makerProfile.clear();
    QTest::newRow("an address without @") << noAt << Links{{u"Quorvane"_s, QUrl(u"https://quorvane.app"_s)}};
}

void SetupTextsTest::authorLinks()
{
    QFETCH(AboutConfig, config);
    QFETCH(Links, links);
    QCOMPARE(About::authorLinks(config), links);
}

// The rows QML draws, checked as a model; and what this build was configured with.
void SetupTextsTest::linkModel()
{
    QList<QUrl> opened;
    const UrlOpener opener([&opened](const QUrl &url) { return opened.append(url), true; });
    AboutModel about(AboutConfig::fromBuild(), opener);
    QCOMPARE(about.versionLine(), u"Version 2.0 (200)"_s);
    QCOMPARE(about.madeBy(), u"Made by Ilvane Dorsk"_s);

    const AboutConfig config = fullConfig();
    LinkListModel model(About::authorLinks(config));
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 4);
    const QModelIndex last = model.index(3);
    QCOMPARE(model.data(last, LinkListModel::TitleRole).toString(), u"Contact"_s);
    QCOMPARE(model.data(last, LinkListModel::UrlRole).toUrl(), QUrl(u"mailto:hello@dorsk.dev"_s));
    const QHash<int, QByteArray> roles = model.roleNames();
    QCOMPARE(roles.value(LinkListModel::TitleRole), QByteArray("title"));
    QCOMPARE(roles.value(LinkListModel::UrlRole), QByteArray("url"));

    QVERIFY(about.open(model.data(last, LinkListModel::UrlRole).toUrl()));
    QVERIFY(!about.open(QUrl(u"file:///etc/passwd"_s)));
    QCOMPARE(opened, QList<QUrl>{QUrl(u"mailto:hello@dorsk.dev"_s)});
}

QTEST_MAIN(SetupTextsTest)
#include "tst_setup_texts.moc"
