// The main window's menus: the maker's items in Help, and the keys as written beside items.
#include "AppMenuModel.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

class TestAppMenuModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The Help menu's maker items: the name as configured, the site only where it is a web
    // page the app may open, named by its host.
    void makerItems_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("site");
        QTest::addColumn<QString>("madeBy");
        QTest::addColumn<QString>("siteTitle"); // empty: no site item

        QTest::newRow("name and site") << u"Ilvane Dorsk"_s << u"https://www.dorsk.dev"_s
                                       << u"Made by Ilvane Dorsk"_s << u"dorsk.dev"_s;
        QTest::newRow("site with a path") << u"Ilvane Dorsk"_s << u"http://dorsk.dev/work"_s
                                          << u"Made by Ilvane Dorsk"_s << u"dorsk.dev"_s;
        QTest::newRow("spaces around") << u" Ilvane Dorsk "_s << u" https://dorsk.dev "_s
                                       << u"Made by Ilvane Dorsk"_s << u"dorsk.dev"_s;
        QTest::newRow("no site") << u"Ilvane Dorsk"_s << QString() << u"Made by Ilvane Dorsk"_s << QString();
        QTest::newRow("no name") << QString() << QString() << QString() << QString();
        QTest::newRow("no scheme") << u"I"_s << u"dorsk.dev"_s << u"Made by I"_s << QString();
        QTest::newRow("script") << u"I"_s << u"javascript:alert(1)"_s << u"Made by I"_s << QString();
        QTest::newRow("mail is no site") << u"I"_s << u"mailto:ilvane@dorsk.dev"_s << u"Made by I"_s << QString();
    }
    void makerItems()
    {
        QFETCH(QString, name);
        QFETCH(QString, site);
        QFETCH(QString, siteTitle);
        const AppMenuModel menu(name, site);
        QTEST(menu.madeBy(), "madeBy");
        QCOMPARE(menu.makerSiteTitle(), siteTitle);
        QCOMPARE(menu.makerSite().isEmpty(), siteTitle.isEmpty());
    }

    // Keys as the desktop writes them, whatever way the menu spelled them.
    void keys_data()
    {
        QTest::addColumn<QString>("sequence");
        QTest::addColumn<QString>("text");

        QTest::newRow("two modifiers") << u"Ctrl+Shift+S"_s << u"Ctrl+Shift+S"_s;
        QTest::newRow("modifiers in any order") << u"Shift+Ctrl+J"_s << u"Ctrl+Shift+J"_s;
        QTest::newRow("lower case") << u"ctrl+k"_s << u"Ctrl+K"_s;
        QTest::newRow("comma") << u"Ctrl+,"_s << u"Ctrl+,"_s;
        QTest::newRow("none") << QString() << QString();
    }
    void keys()
    {
        QFETCH(QString, sequence);
        QTEST(AppMenuModel::shortcutText(sequence), "text");
    }
};

QTEST_GUILESS_MAIN(TestAppMenuModel)
#include "tst_app_menu_model.moc"
