#include "components/BannerStyle.h"

using namespace Qt::StringLiterals;

namespace quorvane {

QString BannerStyle::symbol(Banner::Kind kind)
{
    switch (kind) {
    case Banner::Kind::error:
        return u"exclamationmark.triangle.fill"_s;
    case Banner::Kind::offline:
        return u"wifi.slash"_s;
    case Banner::Kind::info:
        return u"checkmark.circle.fill"_s;
    }
    return u"exclamationmark.triangle.fill"_s;
}

Tint BannerStyle::tint(Banner::Kind kind)
{
    switch (kind) {
    case Banner::Kind::error:
        return Tint::orange;
    case Banner::Kind::offline:
        return Tint::secondary;
    case Banner::Kind::info:
        return Tint::green;
    }
    return Tint::orange;
}

QString BannerStyle::symbolOf(AppModel::BannerKind kind)
{
    return symbol(Banner::Kind(int(kind)));
}

QColor BannerStyle::tintOf(AppModel::BannerKind kind)
{
    return Tints::color(tint(Banner::Kind(int(kind))));
}

} // namespace quorvane
