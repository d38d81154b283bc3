// SPDX-License-Identifier: MIT
#include "engine/Tool.h"

#include "support/Bundle.h"

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
