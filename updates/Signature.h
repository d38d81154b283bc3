// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

/// An Ed25519 signature over exactly these bytes. Keys are 32 bytes, signatures 64. Thread: any.
[[nodiscard]] bool isSignedBy(
    QByteArrayView publicKey, QByteArrayView signature, QByteArrayView message);
