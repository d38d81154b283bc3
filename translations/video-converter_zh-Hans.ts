<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Localizable</name>
    <message>
        <source>Conversion Log</source>
        <comment>title of the log&apos;s window</comment>
        <translation>转换日志</translation>
    </message>
    <message>
        <source>Show Conversion Log</source>
        <comment>menu command, opens a window</comment>
        <translation>显示转换日志</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <comment>menu command</comment>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Video to open.</source>
        <comment>help on the command line</comment>
        <translation>要打开的视频。</translation>
    </message>
    <message>
        <source>Try &apos;video-converter-cli --help&apos;.</source>
        <comment>Command line: follows a message about wrong usage</comment>
        <translation>请尝试“video-converter-cli --help”。</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; did you mean &quot;%@&quot;?</source>
        <comment>Command line: wrong value of --to, and the nearest right one</comment>
        <translation>没有名为“%@”的输出格式；您是指“%@”吗？</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; the command &apos;formats&apos; lists them.</source>
        <comment>Command line: wrong value of --to</comment>
        <translation>没有名为“%@”的输出格式；命令“formats”可列出所有输出格式。</translation>
    </message>
    <message>
        <source>&apos;%@&apos; does not take --%@.</source>
        <comment>Command line: a command and an option that does not belong to it</comment>
        <translation>“%@”不接受 --%@。</translation>
    </message>
    <message>
        <source>--%@ needs one value.</source>
        <comment>Command line: an option given twice or with an empty value</comment>
        <translation>--%@ 需要一个值。</translation>
    </message>
    <message>
        <source>&apos;formats&apos; takes no files.</source>
        <comment>Command line: wrong usage</comment>
        <translation>“formats”不接受文件。</translation>
    </message>
    <message>
        <source>&apos;probe&apos; takes exactly one file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>“probe”只接受一个文件。</translation>
    </message>
    <message>
        <source>&apos;plan&apos; takes either a video and an output file, or --info alone.</source>
        <comment>Command line: wrong usage</comment>
        <translation>“plan”接受一个视频和一个输出文件，或仅接受 --info。</translation>
    </message>
    <message>
        <source>There is no video to convert.</source>
        <comment>Command line: wrong usage</comment>
        <translation>没有要转换的视频。</translation>
    </message>
    <message>
        <source>&apos;convert&apos; needs either --output or --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>“convert”需要 --output 或 --folder 之一。</translation>
    </message>
    <message>
        <source>Several videos can&apos;t go to one output file; use --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>多个视频不能写入同一个输出文件；请使用 --folder。</translation>
    </message>
    <message>
        <source>--to NAME is missing.</source>
        <comment>Command line: wrong usage</comment>
        <translation>缺少 --to 名称。</translation>
    </message>
    <message>
        <source>There is no command named &quot;%@&quot;.</source>
        <comment>Command line: wrong usage</comment>
        <translation>没有名为“%@”的命令。</translation>
    </message>
    <message>
        <source>%@; that much was kept.</source>
        <comment>After: The converting progress was finished at 12s</comment>
        <translation>%@；已转换的部分予以保留。</translation>
    </message>
    <message>
        <source>The destination&apos;s folder does not exist.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>目标文件夹不存在。</translation>
    </message>
    <message>
        <source>The destination&apos;s folder is a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>指定的目标文件夹是一个文件。</translation>
    </message>
    <message>
        <source>The destination&apos;s folder may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>没有写入目标文件夹的权限。</translation>
    </message>
    <message>
        <source>The result can&apos;t replace a video that is to be converted.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>转换结果不能替换待转换的视频。</translation>
    </message>
    <message>
        <source>The destination is a folder, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>目标是文件夹，而不是文件。</translation>
    </message>
    <message>
        <source>The destination is a link that leads nowhere.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>目标是一个失效的链接。</translation>
    </message>
    <message>
        <source>The destination is a pipe or a device, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>目标是管道或设备，而不是文件。</translation>
    </message>
    <message>
        <source>The destination exists already; --overwrite replaces it.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>目标已存在；使用 --overwrite 可将其替换。</translation>
    </message>
    <message>
        <source>The destination may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>没有写入目标的权限。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>This is a folder, not a video.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>这是文件夹，而不是视频。</translation>
    </message>
    <message>
        <source>The file may not be read: permission denied.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>无法读取文件：权限不足。</translation>
    </message>
    <message>
        <source>This is a pipe or a device, not a file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>这是管道或设备，而不是文件。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>The video is shorter than one second.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>视频时长不足一秒。</translation>
    </message>
    <message>
        <source>The tool %@ is missing or can&apos;t be run.</source>
        <comment>Path of a program</comment>
        <translation>工具 %@ 缺失或无法运行。</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>Heading of a group of outputs</comment>
        <translation>设备</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>Heading of a group of outputs</comment>
        <translation>格式</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>Heading of a group of outputs</comment>
        <translation>MP4 画质</translation>
    </message>
    <message>
        <source>Usage: video-converter-cli formats [--json]
Lists the outputs that --to takes: devices, formats and MP4 qualities.</source>
        <comment>Help of the headless command</comment>
        <translation>用法：video-converter-cli formats [--json]
列出 --to 可用的输出格式：设备、格式和 MP4 画质。</translation>
    </message>
    <message>
        <source>Usage: video-converter-cli plan --to NAME FILE OUT [--json]
       video-converter-cli plan --to NAME --info JSONFILE [--json]
Prints the tool&apos;s command line, quoted for a shell, without running it.

  --to NAME        the output, one of those that &apos;formats&apos; lists, or all
  --info JSONFILE  takes the video&apos;s description from a file made by &apos;probe --json&apos;
                   (- for standard input) and prints only the arguments that depend
                   on it
  --json           prints one object: name of the output, list of arguments</source>
        <comment>Help of the headless command</comment>
        <translation>用法：video-converter-cli plan --to 名称 文件 输出文件 [--json]
      video-converter-cli plan --to 名称 --info JSON文件 [--json]
显示工具的命令行（已按 shell 的要求加引号），但不执行。

  --to 名称        输出格式，即“formats”列出的其中一个，或 all（全部）
  --info JSON文件  从“probe --json”生成的文件（- 表示标准输入）读取视频信息，
                   并且只显示取决于该信息的参数
  --json           输出一个对象：输出格式的名称、参数列表</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <comment>The user stopped the program</comment>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>The output can&apos;t be written.</source>
        <comment>Standard output is a file on a full disk</comment>
        <translation>无法写入输出。</translation>
    </message>
    <message>
        <source>%@: converted to %@ in %@</source>
        <comment>Video, file that was made of it, time that it took</comment>
        <translation>%@: 已转换为 %@，用时 %@</translation>
    </message>
    <message>
        <source>%d of %d videos converted</source>
        <comment>Sum after the conversion of several videos</comment>
        <translation>已转换的视频：%d / %d</translation>
    </message>
    <message>
        <source>The file can&apos;t be opened.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>无法打开文件。</translation>
    </message>
    <message>
        <source>The file holds no JSON.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>文件中没有 JSON。</translation>
    </message>
    <message>
        <source>%d ch</source>
        <comment>Number of sound channels, abbreviated</comment>
        <translation>%d 声道</translation>
    </message>
    <message>
        <source>Length</source>
        <comment>Property of a video</comment>
        <translation>时长</translation>
    </message>
    <message>
        <source>Container</source>
        <comment>Property of a video</comment>
        <translation>容器</translation>
    </message>
    <message>
        <source>Stream</source>
        <comment>Property of a video</comment>
        <translation>轨道</translation>
    </message>
    <message>
        <source>none</source>
        <comment>A video has no cover picture</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>Cover</source>
        <comment>Property of a video</comment>
        <translation>封面</translation>
    </message>
    <message>
        <source>%@ so far</source>
        <comment>Time that a conversion of unknown length has taken</comment>
        <translation>已用 %@</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>Time that a conversion still needs</comment>
        <translation>剩余 %@</translation>
    </message>
    <message>
        <source>There is no space left on the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>目标磁盘空间不足。</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <comment>Why a conversion failed</comment>
        <translation>磁盘配额已用完。</translation>
    </message>
    <message>
        <source>The destination&apos;s disk is read-only.</source>
        <comment>Why a conversion failed</comment>
        <translation>目标磁盘是只读的。</translation>
    </message>
    <message>
        <source>Permission was denied to read the video or to write the result.</source>
        <comment>Why a conversion failed</comment>
        <translation>没有读取视频或写入结果的权限。</translation>
    </message>
    <message>
        <source>The installed tool has no encoder %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>所安装的工具没有编码器 %@。</translation>
    </message>
    <message>
        <source>The installed tool can&apos;t write the format %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>所安装的工具无法写入 %@ 格式。</translation>
    </message>
    <message>
        <source>The destination&apos;s name is too long.</source>
        <comment>Why a conversion failed</comment>
        <translation>目标名称过长。</translation>
    </message>
    <message>
        <source>A disk reported an error.</source>
        <comment>Why a conversion failed</comment>
        <translation>磁盘报告了错误。</translation>
    </message>
    <message>
        <source>There was not enough memory.</source>
        <comment>Why a conversion failed</comment>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>The tool was silent for too long and was stopped.</source>
        <comment>Why a conversion failed</comment>
        <translation>工具长时间没有响应，已被停止。</translation>
    </message>
    <message>
        <source>The video&apos;s data is damaged.</source>
        <comment>Why a conversion failed</comment>
        <translation>视频数据已损坏。</translation>
    </message>
    <message>
        <source>The tool failed: %@</source>
        <comment>Why a conversion failed; the tool&apos;s own words follow</comment>
        <translation>工具出错：%@</translation>
    </message>
    <message>
        <source>The tool was killed before it was done.</source>
        <comment>Why a conversion failed</comment>
        <translation>工具在完成之前被强行终止。</translation>
    </message>
    <message>
        <source>Video Converter quit unexpectedly the last time.</source>
        <comment>crash question, title</comment>
        <translation>Video Converter 上次意外退出。</translation>
    </message>
    <message>
        <source>May a report be sent to its makers? It says where the program stopped, its version and your system; nothing about your files is in it. “Always Send” also tells them when the program starts and how it ended.</source>
        <comment>crash question, text</comment>
        <translation>是否允许向开发者发送报告？报告说明程序停止的位置、程序版本和您的系统，不包含任何与您的文件有关的信息。若选择“始终发送”，还会告知开发者程序何时启动、如何结束。</translation>
    </message>
    <message>
        <source>Send</source>
        <comment>crash question, button</comment>
        <translation>发送</translation>
    </message>
    <message>
        <source>Always Send</source>
        <comment>crash question, button</comment>
        <translation>始终发送</translation>
    </message>
    <message>
        <source>Don&apos;t Send</source>
        <comment>crash question, button</comment>
        <translation>不发送</translation>
    </message>
    <message>
        <source>The converting progress was finished at %@</source>
        <comment>Error message format string when file has not been converted at full length</comment>
        <translation>转换在 %@ 处结束</translation>
    </message>
    <message>
        <source>Version %@</source>
        <comment>about box, with the version number</comment>
        <translation>版本 %@</translation>
    </message>
    <message>
        <source>About %@</source>
        <comment>about box, with the program&apos;s name</comment>
        <translation>关于 %@</translation>
    </message>
    <message>
        <source>Visit Web Site</source>
        <comment>button of the about box</comment>
        <translation>访问网站</translation>
    </message>
    <message>
        <source>Alert.No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Alert.Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>“%@” is a folder. Choose another name.</source>
        <comment>alert of the save panel, with the name of a folder</comment>
        <translation>“%@”是一个文件夹。请选择其他名称。</translation>
    </message>
    <message>
        <source>“%@” already exists. Do you want to replace it?</source>
        <comment>question of the save panel, with the name of a file</comment>
        <translation>“%@”已存在。要替换它吗？</translation>
    </message>
    <message>
        <source>Convert.savePanelTitle</source>
        <comment>title for save panel</comment>
        <translation>转换</translation>
    </message>
    <message>
        <source>Convert.savePanelPrompt</source>
        <comment>prompt for save panel</comment>
        <translation>转换</translation>
    </message>
    <message>
        <source>Convert.savePanelNameFieldLabel</source>
        <comment>name label for save panel (&lt;= 15 symbols)</comment>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>%dd %dh %dm %ds</source>
        <comment>format string for days/hours/minutes/seconds</comment>
        <translation>%d 天 %d 小时 %d 分 %d 秒</translation>
    </message>
    <message>
        <source>%dh %dm %ds</source>
        <comment>format string for hours/minutes/seconds</comment>
        <translation>%d 小时 %d 分 %d 秒</translation>
    </message>
    <message>
        <source>%dm %ds</source>
        <comment>format string for minutes/seconds</comment>
        <translation>%d 分 %d 秒</translation>
    </message>
    <message>
        <source>%ds</source>
        <comment>format string for seconds</comment>
        <translation>%d 秒</translation>
    </message>
    <message>
        <source>Video not supported</source>
        <comment>Error message &apos;Video not supported&apos;</comment>
        <translation>不支持此视频</translation>
    </message>
    <message>
        <source>Attention! Current converting process will be cancelled.
Are you sure you want to continue?</source>
        <comment>Cancel progress alert message text</comment>
        <translation>注意！当前的转换将被取消。
确定要继续吗？</translation>
    </message>
    <message>
        <source>The video can&apos;t be converted into itself</source>
        <comment>the chosen destination is the source file</comment>
        <translation>无法将视频转换为其自身</translation>
    </message>
    <message>
        <source>Choose another name or another folder for the result.</source>
        <comment>the chosen destination is the source file</comment>
        <translation>请为转换结果选择其他名称或其他文件夹。</translation>
    </message>
    <message>
        <source>Error processing %@</source>
        <comment>Error message on conversion failure</comment>
        <translation>处理 %@ 时出错</translation>
    </message>
    <message>
        <source>Converting a video</source>
        <comment>why the machine stays awake</comment>
        <translation>正在转换视频</translation>
    </message>
    <message>
        <source>%d%% – %@</source>
        <comment>window title while converting: percentage, program name</comment>
        <translation>%d%% – %@</translation>
    </message>
    <message>
        <source>%d%%, about %@ left</source>
        <comment>percentage converted and time left, such as 1m 30s</comment>
        <translation>%d%%，剩余约 %@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <comment>percentage converted</comment>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Convert.buttonTitle</source>
        <comment>convert button title</comment>
        <translation>转换</translation>
    </message>
    <message>
        <source>You have the newest version of Video Converter, %@.</source>
        <comment>update check</comment>
        <translation>您的 Video Converter 已是最新版本 %@。</translation>
    </message>
    <message>
        <source>Updates are not available in this build.</source>
        <comment>update check</comment>
        <translation>此构建版本不提供更新。</translation>
    </message>
    <message>
        <source>The list of updates could not be read. Please try again later.</source>
        <comment>update check</comment>
        <translation>无法读取更新列表。请稍后再试。</translation>
    </message>
    <message>
        <source>An update was announced, but not by the makers of Video Converter. It is not offered.</source>
        <comment>update check: wrong signature</comment>
        <translation>发现了一个更新通知，但并非由 Video Converter 的开发者发布，因此不予提供。</translation>
    </message>
    <message>
        <source>What is new</source>
        <comment>update dialog, release notes</comment>
        <translation>新增内容</translation>
    </message>
    <message>
        <source>Software Update</source>
        <comment>update dialog, title</comment>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Video Converter %1$@ is available. You have %2$@.</source>
        <comment>update dialog: new, own version</comment>
        <translation>Video Converter %1$@ 现已推出。您当前的版本是 %2$@。</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>update dialog, button</comment>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>update dialog, button</comment>
        <translation>下载</translation>
    </message>
    <message>
        <source>Open Web Site</source>
        <comment>update dialog, button</comment>
        <translation>打开网站</translation>
    </message>
    <message>
        <source>Downloading version %@</source>
        <comment>update download</comment>
        <translation>正在下载版本 %@</translation>
    </message>
    <message>
        <source>The update is in your downloads folder as “%@”. Open it to install it.</source>
        <comment>update download</comment>
        <translation>更新已保存到“下载”文件夹，文件名为“%@”。打开它即可安装。</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <comment>update download, button</comment>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>The download was not signed by the makers of Video Converter and has been thrown away.</source>
        <comment>update download: wrong signature</comment>
        <translation>下载的文件没有 Video Converter 开发者的签名，已被丢弃。</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Please try again later.</source>
        <comment>update download</comment>
        <translation>无法下载更新。请稍后再试。</translation>
    </message>
    <message>
        <source>The result would replace another one of this run.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>该结果会替换本次运行的另一个结果。</translation>
    </message>
    <message>
        <source>The file is not a video, or it is damaged or incomplete.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>该文件不是视频，或者已损坏或不完整。</translation>
    </message>
    <message>
        <source>The file does not say how long it plays.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>文件没有提供时长信息。</translation>
    </message>
    <message>
        <source>The size of the file is unknown.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>无法确定文件的大小。</translation>
    </message>
    <message>
        <source>The file is still being written, or only part of it could be read.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>文件仍在写入中，或者只能读取其中一部分。</translation>
    </message>
    <message>
        <source>Another program stopped the tool.</source>
        <comment>Why a conversion failed</comment>
        <translation>工具被外部终止。</translation>
    </message>
    <message>
        <source>The result is too large for the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>目标磁盘不支持这么大的文件。</translation>
    </message>
    <message>
        <source>The video or the destination&apos;s folder no longer exists.</source>
        <comment>Why a conversion failed</comment>
        <translation>视频或目标文件夹已不存在。</translation>
    </message>
    <message>
        <source>The video contains nothing that this output can hold.</source>
        <comment>Why a conversion failed</comment>
        <translation>视频中没有此输出格式可以容纳的内容。</translation>
    </message>
    <message>
        <source>The encoder can&apos;t handle this video&apos;s picture or sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>编码器无法按原样处理该视频的画面或声音。</translation>
    </message>
    <message>
        <source>Usage: video-converter-cli COMMAND [OPTIONS]
Converts videos.

  formats   lists the outputs that --to takes
  probe     describes a video
  plan      prints the tool&apos;s command line without running it
  convert   converts videos

video-converter-cli COMMAND --help explains a command. All commands take:
  --json      prints JSON
  --verbose   prints diagnostics and the tool&apos;s full output to standard error
  -h, --help  prints this help
  --version   prints the version

Exit status: 0 done, 1 a conversion failed, 2 wrong usage, 3 video refused, 4 destination
refused, 5 the tools are missing, 128 + N stopped by signal N (130 after Ctrl-C).
With several videos, the first one that was not converted decides.</source>
        <comment>Help of the headless command; words in capitals stand for what the user types</comment>
        <translation>用法：video-converter-cli 命令 [选项]
转换视频。

  formats   列出 --to 可用的输出格式
  probe     显示视频的信息
  plan      显示工具的命令行，但不执行
  convert   转换视频

“video-converter-cli 命令 --help”可显示某个命令的详细说明。所有命令都接受：
  --json      以 JSON 格式输出
  --verbose   将诊断信息和工具的全部输出显示到标准错误输出
  -h, --help  显示此帮助
  --version   显示版本

退出状态：0 完成，1 有转换失败，2 用法错误，3 视频被拒绝，4 目标被拒绝，
5 缺少工具，128 + N 被信号 N 终止（按 Ctrl-C 后为 130）。
有多个视频时，为第一个未能转换的视频的状态。</translation>
    </message>
    <message>
        <source>Usage: video-converter-cli probe FILE [--json]
Describes a video. With --json: everything that the tool reports (info), its length
(duration, seconds) and the size of its cover picture or null (cover).</source>
        <comment>Help of the headless command</comment>
        <translation>用法：video-converter-cli probe 文件 [--json]
显示视频的信息。使用 --json 时输出：工具提供的全部信息 (info)、
时长 (duration、seconds)，以及封面的尺寸或 null (cover)。</translation>
    </message>
    <message>
        <source>Usage: video-converter-cli convert --to NAME FILE -o OUT
       video-converter-cli convert --to NAME FILE... -d FOLDER
Converts videos, one after the other. Ctrl-C cancels and leaves no unfinished file.

  --to NAME            the output, one of those that &apos;formats&apos; lists
  -o, --output OUT     the file to write
  -d, --folder FOLDER  the folder to write to; the files get the videos&apos; names
  --overwrite          replaces files that exist; a video itself is never replaced
  --json               prints one JSON object a line

A name that begins with a dash goes after --, as in: convert --to GIF -o a.gif -- -a.mov</source>
        <comment>Help of the headless command</comment>
        <translation>用法：video-converter-cli convert --to 名称 文件 -o 输出文件
      video-converter-cli convert --to 名称 文件... -d 文件夹
逐个转换视频。按 Ctrl-C 可停止，且不会留下未完成的文件。

  --to 名称              输出格式，即“formats”列出的其中一个
  -o, --output 输出文件  要写入的文件
  -d, --folder 文件夹    要写入的文件夹；文件沿用视频的名称
  --overwrite            替换已有的文件；绝不会替换视频本身
  --json                 每行输出一个 JSON 对象

以短横线开头的名称要放在 -- 之后，例如：
convert --to GIF -o a.gif -- -a.mov</translation>
    </message>
    <message>
        <source>The result can&apos;t go to standard output; name a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>结果不能输出到标准输出，请指定文件。</translation>
    </message>
    <message>
        <source>The file&apos;s name can&apos;t be represented as text. Please rename it.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>文件名无法以文本表示，请重命名该文件。</translation>
    </message>
    <message>
        <source>The result has no moving picture, although the video has one.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>结果中没有动态画面，但原视频有。</translation>
    </message>
    <message>
        <source>The result has no sound, although the video has some.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>结果中没有声音，但原视频有。</translation>
    </message>
    <message>
        <source>The cover picture was left out, because this output can&apos;t show it.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>封面图片已略去，因为此输出无法显示它。</translation>
    </message>
    <message>
        <source>The picture was made a little smaller, because this output needs even sizes.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>画面略微缩小，因为此输出要求偶数尺寸。</translation>
    </message>
    <message>
        <source>The sound was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>声音已重新编码，因为此输出无法直接采用原有声音。</translation>
    </message>
    <message>
        <source>The picture was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>画面已重新编码，因为此输出无法直接采用原有画面。</translation>
    </message>
    <message>
        <source>The video is damaged in places, first at %@.</source>
        <comment>Remark on a whole result, with a time</comment>
        <translation>视频有几处损坏，首处位于 %@。</translation>
    </message>
    <message>
        <source>The video is damaged in places.</source>
        <comment>Remark on a whole result</comment>
        <translation>视频有几处损坏。</translation>
    </message>
    <message>
        <source>The older file was kept as “%@”.</source>
        <comment>Remark on a short result, with a file&apos;s name</comment>
        <translation>旧文件已保留为“%@”。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Video Converter</source>
        <translation>Video Converter</translation>
    </message>
    <message>
        <source>Picture of the video</source>
        <translation>视频画面</translation>
    </message>
    <message>
        <source>Examining the video</source>
        <translation>正在分析视频</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>拖放区域</translation>
    </message>
    <message>
        <source>Drag a video here</source>
        <translation>将视频拖到这里</translation>
    </message>
    <message>
        <source>or choose it from a folder</source>
        <translation>或从文件夹中选择</translation>
    </message>
    <message>
        <source>Choose a video to convert</source>
        <translation>选择要转换的视频</translation>
    </message>
    <message>
        <source>Choose what the video becomes</source>
        <translation>选择要将视频转换成的格式</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>正在转换…</translation>
    </message>
    <message>
        <source>Progress of the conversion</source>
        <translation>转换进度</translation>
    </message>
    <message>
        <source>Cancel the conversion</source>
        <translation>取消转换</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Conversion complete</source>
        <translation>转换完成</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Show the converted file in its folder</source>
        <translation>在文件夹中显示转换后的文件</translation>
    </message>
    <message>
        <source>Convert Another</source>
        <translation>转换其他视频</translation>
    </message>
    <message>
        <source>Start over with another video</source>
        <translation>换一个视频重新开始</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Convert &amp;To</source>
        <translation>转换为(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>heading in the format menu</comment>
        <translation>设备</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>heading in the format menu</comment>
        <translation>格式</translation>
    </message>
    <message>
        <source>Audio (MP3)</source>
        <comment>item of the format menu</comment>
        <translation>仅音频 (MP3)</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>heading in the format menu</comment>
        <translation>MP4 画质</translation>
    </message>
    <message>
        <source>MP4 Low Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4 低画质</translation>
    </message>
    <message>
        <source>MP4 Medium Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4 中等画质</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Cancel Conversion</source>
        <translation>取消转换(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>在文件夹中显示(&amp;S)</translation>
    </message>
    <message>
        <source>Convert &amp;Another</source>
        <translation>转换其他视频(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Paste Video</source>
        <translation>粘贴视频(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;About Video Converter</source>
        <translation>关于 Video Converter(&amp;A)</translation>
    </message>
</context>
</TS>
