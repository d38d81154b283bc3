// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Addresses and identifiers fixed when the program is built; empty means the feature is off.
/// Each address may be replaced by an environment variable, which is obeyed only when it points to
/// a loopback address, so that nothing but a test on this machine can redirect the program. Thread:
/// any.
namespace Configuration {

/// Version of the program, such as "1.0.0".
[[nodiscard]] QString version();
/// Where usage events are posted; VIDEO_CONVERTER_COLLECTOR_URL replaces it.
[[nodiscard]] QString collectorUrl();
/// Appcast of the updates; VIDEO_CONVERTER_FEED_URL replaces it.
[[nodiscard]] QString feedUrl();
/// Service that takes crash reports; VIDEO_CONVERTER_CRASH_URL replaces it.
[[nodiscard]] QString crashUrl();
/// Root address of the vendor's web site, ending in "/".
[[nodiscard]] QString siteUrl();
/// Base64 of the Ed25519 public key that signs updates.
[[nodiscard]] QString updateKey();
/// Analytics property that the usage events belong to.
[[nodiscard]] QString trackingId();
/// DO_NOT_TRACK=1 in the environment: neither usage events nor crash reports leave the machine.
[[nodiscard]] bool doNotTrack();

}
