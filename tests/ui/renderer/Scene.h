#pragma once

#include "FixtureApp.h"

#include <QSize>
#include <QString>

#include <functional>

namespace quorvane::test {

class Stage;

// One picture: a window of the app in one state, drawn from the fixture app.
struct Scene {
    QString name;                            // the PNG's name, without ".png": "main-with-data"
    QString window = QStringLiteral("main"); // the id the shell opens
    FixtureApp::Options fixture;
    // Runs once the window has drawn: switch a section, open a popup, press a key.
    std::function<void(Stage &)> prepare;
    QSize size;         // the window's size, where not its own
    int settleMs = 400; // time for refreshes, transitions and fades before the picture
    QString language;   // the translation it is drawn in ("pseudo"); empty: English
};

} // namespace quorvane::test
