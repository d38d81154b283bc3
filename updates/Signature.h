// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <span>

/// An Ed25519 signature over exactly these bytes. Keys are 32 bytes, signatures 64. Thread: any.
[[nodiscard]] bool isSignedBy(const QByteArray &publicKey, const QByteArray &signature,
    std::span<const unsigned char> message);
