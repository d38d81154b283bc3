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
        <source>The destination exists already.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>目标已存在。</translation>
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
    <message>
        <source>Settings…</source>
        <comment>menu command</comment>
        <translation>设置…</translation>
    </message>
    <message>
        <source>This build contacts nobody.</source>
        <comment>settings</comment>
        <translation>此构建版本不会与外部通信。</translation>
    </message>
    <message>
        <source>As on the desktop</source>
        <comment>settings, choice of the language</comment>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Settings</source>
        <comment>title of the settings&apos; window</comment>
        <translation>设置</translation>
    </message>
    <message>
        <source>Send anonymous usage events</source>
        <comment>settings</comment>
        <translation>发送匿名使用数据</translation>
    </message>
    <message>
        <source>Look for updates once a day</source>
        <comment>settings</comment>
        <translation>每天检查一次更新</translation>
    </message>
    <message>
        <source>Language:</source>
        <comment>settings</comment>
        <translation>语言：</translation>
    </message>
    <message>
        <source>From the next start on.</source>
        <comment>settings, language</comment>
        <translation>下次启动时生效。</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; did you mean &quot;%@&quot;?</source>
        <comment>Command line: wrong value of --to, and the nearest right ones</comment>
        <translation>没有名为“%@”的输出格式；您是指“%@”吗？</translation>
    </message>
    <message>
        <source>&apos;plan&apos; takes a video and an output file, videos and --folder, or --info alone.</source>
        <comment>Command line: wrong usage</comment>
        <translation>“plan”接受一个视频和一个输出文件、若干视频和 --folder，或仅接受 --info。</translation>
    </message>
    <message>
        <source>--overwrite and --skip-existing exclude each other.</source>
        <comment>Command line: wrong usage</comment>
        <translation>--overwrite 和 --skip-existing 不能同时使用。</translation>
    </message>
    <message>
        <source>&quot;%@&quot; is no name for &quot;%@&quot;, which makes .%@ files.</source>
        <comment>Command line: name of a result, name of an output, its extension</comment>
        <translation>“%@”不能用作“%@”的输出文件名，该格式生成 .%@ 文件。</translation>
    </message>
    <message>
        <source>&apos;probe&apos; needs a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>“probe”需要一个文件。</translation>
    </message>
    <message>
        <source>--jobs takes a number, --shard two such as 2/8.</source>
        <comment>Command line: wrong usage</comment>
        <translation>--jobs 需要一个数字，--shard 需要两个，例如 2/8。</translation>
    </message>
    <message>
        <source>Lists the outputs that --to takes: devices, formats and MP4 qualities.</source>
        <comment>Help: command formats</comment>
        <translation>列出 --to 可用的输出格式：设备、格式和 MP4 画质。</translation>
    </message>
    <message>
        <source>Describes videos. With --json: everything that the tool reports (info), the length (duration, seconds) and the size of the cover picture or null (cover).</source>
        <comment>Help: command probe</comment>
        <translation>显示视频的信息。使用 --json 时输出：工具提供的全部信息 (info)、时长 (duration、seconds)，以及封面的尺寸或 null (cover)。</translation>
    </message>
    <message>
        <source>Prints the tool&apos;s command line, quoted for a shell, without running it. --to all prints one for each output.</source>
        <comment>Help: command plan</comment>
        <translation>显示工具的命令行（已按 shell 的要求加引号），但不执行。--to all 会为每种输出格式各显示一条。</translation>
    </message>
    <message>
        <source>Converts videos. Ctrl-C cancels and leaves no unfinished file. A name that begins with a dash goes after --.</source>
        <comment>Help: command convert</comment>
        <translation>转换视频。按 Ctrl-C 可取消，且不会留下未完成的文件。以短横线开头的名称要放在 -- 之后。</translation>
    </message>
    <message>
        <source>Usage: %@</source>
        <comment>Help of the command</comment>
        <translation>用法：%@</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a conversion failed or its result is not whole, 2 wrong usage, 3 video refused, 4 destination refused, 5 a tool is missing, 128 + N stopped by signal N (130 after Ctrl-C). With several videos, the first one that was not converted decides.</source>
        <comment>Help of the command</comment>
        <translation>退出状态：0 完成，1 有转换失败或结果不完整，2 用法错误，3 视频被拒绝，4 目标被拒绝，5 缺少工具，128 + N 被信号 N 终止（按 Ctrl-C 后为 130）。有多个视频时，为第一个未能转换的视频的状态。</translation>
    </message>
    <message>
        <source>the output: one of those that &apos;formats&apos; lists, or an extension</source>
        <comment>Help: option --to</comment>
        <translation>输出格式，即“formats”列出的其中一个，或扩展名</translation>
    </message>
    <message>
        <source>the file to write</source>
        <comment>Help: option --output</comment>
        <translation>要写入的文件</translation>
    </message>
    <message>
        <source>the folder to write to; the files get the videos&apos; names</source>
        <comment>Help: option --folder</comment>
        <translation>要写入的文件夹；文件沿用视频的名称</translation>
    </message>
    <message>
        <source>takes all videos and music in a folder and below, and keeps its tree</source>
        <comment>Help: option --recursive</comment>
        <translation>处理文件夹及其子文件夹中的所有视频和音乐，并保留目录结构</translation>
    </message>
    <message>
        <source>takes the names in a file, one a line; - is standard input</source>
        <comment>Help: option --files-from</comment>
        <translation>从文件读取名称，每行一个；- 表示标准输入</translation>
    </message>
    <message>
        <source>names in that file end with a null character, as after find -print0</source>
        <comment>Help: option --null</comment>
        <translation>该文件中的名称以空字符结尾，如 find -print0 的输出</translation>
    </message>
    <message>
        <source>converts N videos side by side; 0 stands for as many as suit the cores</source>
        <comment>Help: option --jobs</comment>
        <translation>同时转换 N 个视频；0 表示根据核心数自动确定</translation>
    </message>
    <message>
        <source>replaces files that exist; a video itself is never replaced</source>
        <comment>Help: option --overwrite</comment>
        <translation>替换已有的文件；绝不会替换视频本身</translation>
    </message>
    <message>
        <source>leaves whole results that are newer than their videos alone, and makes cut ones again</source>
        <comment>Help: option --skip-existing</comment>
        <translation>保留比原视频新的完整结果，并重新生成不完整的结果</translation>
    </message>
    <message>
        <source>takes the K-th of N parts of the videos; the parts depend on their names alone</source>
        <comment>Help: option --shard</comment>
        <translation>将视频分为 N 份并处理第 K 份；如何划分仅取决于视频名称</translation>
    </message>
    <message>
        <source>takes a description saved by &apos;probe --json&apos; (- for standard input) and prints only the arguments that depend on it</source>
        <comment>Help: option --info</comment>
        <translation>读取由“probe --json”保存的信息（- 表示标准输入），并且只显示取决于该信息的参数</translation>
    </message>
    <message>
        <source>prints failures only</source>
        <comment>Help: option --quiet</comment>
        <translation>只显示失败信息</translation>
    </message>
    <message>
        <source>prints JSON; &apos;convert&apos; prints one object a line</source>
        <comment>Help: option --json</comment>
        <translation>以 JSON 格式输出；“convert”每行输出一个对象</translation>
    </message>
    <message>
        <source>prints diagnostics and the tool&apos;s full output to standard error</source>
        <comment>Help: option --verbose</comment>
        <translation>将诊断信息和工具的全部输出显示到标准错误输出</translation>
    </message>
    <message>
        <source>prints this help</source>
        <comment>Help: option --help</comment>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>prints the version</source>
        <comment>Help: option --version</comment>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>%d of %d</source>
        <comment>Number of videos that are done, and of all</comment>
        <translation>%d / %d</translation>
    </message>
    <message>
        <source>%@: %@ is there already</source>
        <comment>Video, file that was made of it in an earlier run</comment>
        <translation>%@: %@ 已存在</translation>
    </message>
    <message>
        <source>The list of videos can&apos;t be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>无法读取视频列表。</translation>
    </message>
    <message>
        <source>There is no such folder, or it may not be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>文件夹不存在，或没有读取权限。</translation>
    </message>
    <message>
        <source>The destination&apos;s name can&apos;t be represented as text. Please choose another one.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>目标名称无法以文本表示，请选择其他名称。</translation>
    </message>
    <message>
        <source>The tool can&apos;t examine videos: %@</source>
        <comment>Why no video can be converted; the tool&apos;s own words follow</comment>
        <translation>工具无法分析视频：%@</translation>
    </message>
    <message>
        <source>The tool needed more memory, threads or files than any video should.</source>
        <comment>Why a conversion failed</comment>
        <translation>工具所需的内存、线程或文件超出了处理视频的合理范围。</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the cover picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>此输出格式无法容纳封面图片。</translation>
    </message>
    <message>
        <source>This output can&apos;t hold a picture of odd width or height.</source>
        <comment>Why a conversion failed</comment>
        <translation>此输出格式不支持宽度或高度为奇数的画面。</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>此输出格式无法容纳该视频的声音。</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>此输出格式无法容纳该视频的画面。</translation>
    </message>
    <message>
        <source>Drop to convert</source>
        <comment>over the window, while a file is dragged</comment>
        <translation>松开即可转换</translation>
    </message>
    <message>
        <source>One video at a time: wait for the end of this one</source>
        <comment>over the window, while a file is dragged that it can&apos;t take now</comment>
        <translation>一次只能转换一个视频，请等待当前转换结束</translation>
    </message>
    <message>
        <source>Only files can be dropped here</source>
        <comment>over the window, while something else than a file is dragged</comment>
        <translation>这里只能拖放文件</translation>
    </message>
    <message>
        <source>Next: “%@”</source>
        <comment>name of a video that came while another one is converted</comment>
        <translation>下一个：“%@”</translation>
    </message>
    <message>
        <source>Examining “%@”</source>
        <comment>name of a video</comment>
        <translation>正在分析“%@”</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>time left of a conversion, such as 1m 30s</comment>
        <translation>剩余 %@</translation>
    </message>
    <message>
        <source>%@ – %@</source>
        <comment>window title while converting: percentage and time left, program name</comment>
        <translation>%@ – %@</translation>
    </message>
    <message>
        <source>The video has no sound</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>视频没有声音</translation>
    </message>
    <message>
        <source>The video has no picture</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>视频没有画面</translation>
    </message>
    <message>
        <source>Drag the result from here into a folder or a mail</source>
        <comment>tool tip of the picture</comment>
        <translation>可将转换结果从这里拖到文件夹或邮件中</translation>
    </message>
    <message>
        <source>Open “%@” again</source>
        <comment>with the name of the last video</comment>
        <translation>再次打开“%@”</translation>
    </message>
    <message>
        <source>One video is converted at a time here. Left out: %d</source>
        <comment>several videos were dropped, with the number of the others</comment>
        <translation>这里一次只能转换一个视频。未处理的视频：%d</translation>
    </message>
    <message>
        <source>Copy command</source>
        <comment>copies a command line that converts several videos</comment>
        <translation>复制命令</translation>
    </message>
    <message>
        <source>Second try, in another way: the first one could not work.</source>
        <comment>while converting</comment>
        <translation>首次尝试失败，正以另一种方式重试。</translation>
    </message>
    <message>
        <source>Try another format</source>
        <comment>after a conversion that failed</comment>
        <translation>尝试其他格式</translation>
    </message>
    <message>
        <source>Show the log</source>
        <comment>what the tool said in a conversion that failed</comment>
        <translation>显示日志</translation>
    </message>
    <message>
        <source>Copied</source>
        <comment>a command line is on the clipboard now</comment>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Copies the sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>复制声音，只需几秒</translation>
    </message>
    <message>
        <source>Encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>重新编码声音</translation>
    </message>
    <message>
        <source>Copies the picture, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>复制画面，只需几秒</translation>
    </message>
    <message>
        <source>Copies picture and sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>复制画面和声音，只需几秒</translation>
    </message>
    <message>
        <source>Copies the picture, encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>复制画面，重新编码声音</translation>
    </message>
    <message>
        <source>Encodes the picture anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>重新编码画面</translation>
    </message>
    <message>
        <source>Encodes the picture anew, copies the sound</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>重新编码画面，复制声音</translation>
    </message>
    <message>
        <source>Encodes picture and sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>重新编码画面和声音</translation>
    </message>
    <message>
        <source>Copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>正在复制声音</translation>
    </message>
    <message>
        <source>Encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>正在编码声音</translation>
    </message>
    <message>
        <source>Copying the picture</source>
        <comment>What a running conversion does</comment>
        <translation>正在复制画面</translation>
    </message>
    <message>
        <source>Copying picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>正在复制画面和声音</translation>
    </message>
    <message>
        <source>Copying the picture, encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>正在复制画面、编码声音</translation>
    </message>
    <message>
        <source>Encoding the picture</source>
        <comment>What a running conversion does</comment>
        <translation>正在编码画面</translation>
    </message>
    <message>
        <source>Encoding the picture, copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>正在编码画面、复制声音</translation>
    </message>
    <message>
        <source>Encoding picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>正在编码画面和声音</translation>
    </message>
    <message>
        <source>Scales to %d × %d</source>
        <comment>What an entry of the format menu does: width, height</comment>
        <translation>缩放至 %d × %d</translation>
    </message>
    <message>
        <source>%d × %d</source>
        <comment>width and height of a picture</comment>
        <translation>%d × %d</translation>
    </message>
    <message>
        <source>The result will take about %@.</source>
        <comment>in the save panel, with a size such as 12.3 MB</comment>
        <translation>转换结果约占 %@。</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <comment>update dialog, button</comment>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Get it where you got Video Converter from.</source>
        <comment>update dialog, when neither a download nor a web site is known</comment>
        <translation>请从您获取 Video Converter 的地方获取新版本。</translation>
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
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open the result in its player</source>
        <translation>用播放器打开转换结果</translation>
    </message>
    <message>
        <source>Convert as &amp;Last Time</source>
        <translation>按上次的方式转换(&amp;L)</translation>
    </message>
</context>
</TS>
