#include "Output.h"

#include <cstdio>

namespace quorvane::cli::Output {

namespace {

void write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void line(const QString &text)
{
    write(stdout, text);
}

void error(const QString &text)
{
    write(stderr, text);
}

} // namespace quorvane::cli::Output
