// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Addresses and identifiers fixed when the program is built; empty means the feature is off. An
/// environment variable may replace an address by one on loopback only. Thread: any.
namespace Configuration {

[[nodiscard]] QString version();
/// Usage events; VIDEO_CONVERTER_COLLECTOR_URL replaces it.
[[nodiscard]] QString collectorUrl();
/// Appcast of the updates; VIDEO_CONVERTER_FEED_URL replaces it.
[[nodiscard]] QString feedUrl();
/// Service that takes crash reports; VIDEO_CONVERTER_CRASH_URL replaces it.
[[nodiscard]] QString crashUrl();
/// Root address of the vendor's web site, ending in "/".
[[nodiscard]] QString siteUrl();
/// Base64 of the Ed25519 public key that signs updates.
[[nodiscard]] QString updateKey();
[[nodiscard]] QString trackingId();
/// DO_NOT_TRACK=1 in the environment: neither usage events nor crash reports leave the machine.
[[nodiscard]] bool doNotTrack();

}
