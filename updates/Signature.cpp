// SPDX-License-Identifier: MIT
#include "updates/Signature.h"

#include <sodium.h>

bool isSignedBy(QByteArrayView publicKey, QByteArrayView signature, QByteArrayView message)
{
    const auto bytes
        = [](QByteArrayView view) { return reinterpret_cast<const unsigned char *>(view.data()); };
    return publicKey.size() == crypto_sign_PUBLICKEYBYTES && signature.size() == crypto_sign_BYTES
        && sodium_init() >= 0
        && crypto_sign_verify_detached(bytes(signature), bytes(message),
               static_cast<std::size_t>(message.size()), bytes(publicKey))
        == 0;
}
