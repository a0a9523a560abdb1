#include "shell/QmlType.h"

namespace quorvane {

QByteArray QmlType::document() const
{
    return "import " + module.toUtf8() + '\n' + name.toUtf8() + " {}\n";
}

} // namespace quorvane
