#pragma once

#include <QByteArray>

#include <sodium.h>

namespace quorvane::test {

// A fresh Ed25519 key pair that signs downloads as a publisher would.
struct SigningKeys {
    QByteArray publicKey{crypto_sign_PUBLICKEYBYTES, '\0'};
    QByteArray secretKey{crypto_sign_SECRETKEYBYTES, '\0'};
    bool ready = sodium_init() >= 0
                 && crypto_sign_keypair(reinterpret_cast<unsigned char *>(publicKey.data()),
                                        reinterpret_cast<unsigned char *>(secretKey.data()))
                        == 0;

    [[nodiscard]] QByteArray sign(const QByteArray &bytes) const
    {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(reinterpret_cast<unsigned char *>(signature.data()), nullptr,
                             reinterpret_cast<const unsigned char *>(bytes.constData()), quint64(bytes.size()),
                             reinterpret_cast<const unsigned char *>(secretKey.constData()));
        return signature;
    }
};

} // namespace quorvane::test
