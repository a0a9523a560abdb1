#include "LibsecretStore.h"

// glib's headers use `signals` as a field name; our Qt keyword macros are off.
#include <libsecret/secret.h>

namespace quorvane {

namespace {

// Items match on service and account alone, like a generic password elsewhere, so a token
// that another tool stored under the same pair is found (and erased) too.
const SecretSchema *tokenSchema()
{
    static const SecretSchema schema = {"com.peldrachen.quorvane.Token",
                                        SECRET_SCHEMA_DONT_MATCH_NAME,
                                        {
                                            {"service", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                            {"account", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                            {nullptr, SecretSchemaAttributeType(0)},
                                        },
                                        0,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr};
    return &schema;
}

// Errors are dropped on purpose: an unreachable or locked store reads as signed out.
void drop(GError *error)
{
    if (error)
        g_error_free(error);
}

} // namespace

std::optional<QByteArray> LibsecretStore::lookup(const QString &service, const QString &account)
{
    GError *error = nullptr;
    gchar *password = secret_password_lookup_sync(tokenSchema(), nullptr, &error,          //
                                                  "service", service.toUtf8().constData(), //
                                                  "account", account.toUtf8().constData(), nullptr);
    drop(error);
    if (!password)
        return std::nullopt;
    QByteArray secret(password);
    secret_password_free(password); // wipes the store's copy
    return secret;
}

void LibsecretStore::remove(const QString &service, const QString &account)
{
    GError *error = nullptr;
    secret_password_clear_sync(tokenSchema(), nullptr, &error,          //
                               "service", service.toUtf8().constData(), //
                               "account", account.toUtf8().constData(), nullptr);
    drop(error);
}

bool LibsecretStore::add(const QString &service, const QString &account, const QString &label, const QByteArray &secret)
{
    GError *error = nullptr;
    const gboolean stored = secret_password_store_sync(
        tokenSchema(), SECRET_COLLECTION_DEFAULT, label.toUtf8().constData(), secret.constData(), nullptr, &error, //
        "service", service.toUtf8().constData(),                                                                   //
        "account", account.toUtf8().constData(), nullptr);
    const bool ok = stored && !error;
    drop(error);
    return ok;
}

} // namespace quorvane
