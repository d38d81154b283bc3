// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <span>

/// Whether the Ed25519 signature over exactly these bytes was made with the private half of this
/// key. Keys are 32 bytes, signatures 64; any other length is no signature. Thread: any.
[[nodiscard]] bool isSignedBy(const QByteArray &publicKey, const QByteArray &signature,
    std::span<const unsigned char> message);
