#pragma once

#include "components/Tint.h"
#include "model/AppModel.h"
#include "model/Banner.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// How a banner of each kind looks: an error is an orange warning triangle, the offline
// notice a grey crossed-out signal, a toast a green check.
class BannerStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    [[nodiscard]] static QString symbol(Banner::Kind kind);
    [[nodiscard]] static Tint tint(Banner::Kind kind);

    Q_INVOKABLE static QString symbolOf(quorvane::AppModel::BannerKind kind);
    Q_INVOKABLE static QColor tintOf(quorvane::AppModel::BannerKind kind);
};

} // namespace quorvane
