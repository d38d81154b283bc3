// SPDX-License-Identifier: MIT
// Untested: nobody has run this on macOS yet.
#include "updates/mac/PlatformUpdater.h"

#include "support/Configuration.h"

#import <Sparkle/Sparkle.h>

@interface UpdaterDelegate : NSObject <SPUUpdaterDelegate>
@end

@implementation UpdaterDelegate
- (NSString *)feedURLStringForUpdater:(SPUUpdater *)updater
{
    return Configuration::feedUrl().toNSString();
}
@end

namespace {

UpdaterDelegate *delegate = nil;
SPUStandardUpdaterController *controller = nil;

}

namespace PlatformUpdater {

void start()
{
    if (Configuration::feedUrl().isEmpty())
        return;
    delegate = [[UpdaterDelegate alloc] init];
    controller = [[SPUStandardUpdaterController alloc] initWithUpdaterDelegate:delegate userDriverDelegate:nil];
}

void checkForUpdates()
{
    [controller checkForUpdates:nil];
}

}
