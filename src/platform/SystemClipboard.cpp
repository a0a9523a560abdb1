#include "SystemClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace quorvane {

void SystemClipboard::setText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

} // namespace quorvane
