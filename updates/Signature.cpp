// SPDX-License-Identifier: MIT
#include "updates/Signature.h"

#include <sodium.h>

namespace {

const unsigned char *bytes(const QByteArray &data)
{
    return reinterpret_cast<const unsigned char *>(data.constData());
}

}

bool isSignedBy(const QByteArray &publicKey, const QByteArray &signature,
    std::span<const unsigned char> message)
{
    return publicKey.size() == crypto_sign_PUBLICKEYBYTES && signature.size() == crypto_sign_BYTES
        && sodium_init() >= 0
        && crypto_sign_verify_detached(
               bytes(signature), message.data(), message.size(), bytes(publicKey))
        == 0;
}
