#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The skeleton bar widths for QML.
class SkeletonMetrics : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static int firstBarWidth(int row);
    Q_INVOKABLE static int secondBarWidth(int row);
};

} // namespace quorvane
