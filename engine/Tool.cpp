// SPDX-License-Identifier: MIT
#include "engine/Tool.h"

#include "support/Bundle.h"
#include "support/FileSystem.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

QString toolPath(Tool tool)
{
    return Bundle::main().bundlePath()
        + (tool == Tool::Ffmpeg ? u"/Contents/ffmpeg/ffmpeg"_s : u"/Contents/ffmpeg/ffprobe"_s);
}

Outcome missingTool(Tool tool)
{
    return { .reason = Reason::ToolMissing, .detail = toolPath(tool) };
}

std::optional<Outcome> toolRefusal(Tool tool)
{
    const QString path = toolPath(tool);
    return isRegularFile(path) && QFileInfo(path).isExecutable() ? std::nullopt
                                                                 : std::optional(missingTool(tool));
}
