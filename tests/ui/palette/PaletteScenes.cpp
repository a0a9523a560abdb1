// The command palette over the main window: just opened, narrowed by a guest's name, and a
// query that matches nothing.
#include "SceneTable.h"
#include "Stage.h"

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

Scene paletteScene(const QString &name, const QString &query)
{
    return sectionScene(name, AppSection::today, [query](Stage &stage) {
        stage.app().model().setShowPalette(true);
        Stage::wait(50);
        if (!query.isEmpty())
            stage.set(u"paletteQuery"_s, "text", query);
    });
}

} // namespace

QUORVANE_SCENES(palette)
{
    return {paletteScene(u"palette-empty"_s, {}), paletteScene(u"palette-query"_s, u"consul"_s),
            paletteScene(u"palette-no-matches"_s, u"zzqx"_s)};
}
