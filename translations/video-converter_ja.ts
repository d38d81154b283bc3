<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Localizable</name>
    <message>
        <source>Conversion Log</source>
        <comment>title of the log&apos;s window</comment>
        <translation>変換ログ</translation>
    </message>
    <message>
        <source>Show Conversion Log</source>
        <comment>menu command, opens a window</comment>
        <translation>変換ログを表示</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <comment>menu command</comment>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Video to open.</source>
        <comment>help on the command line</comment>
        <translation>開く動画。</translation>
    </message>
    <message>
        <source>Try &apos;video-converter-cli --help&apos;.</source>
        <comment>Command line: follows a message about wrong usage</comment>
        <translation>「video-converter-cli --help」を参照してください。</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; did you mean &quot;%@&quot;?</source>
        <comment>Command line: wrong value of --to, and the nearest right one</comment>
        <translation>「%@」という出力形式はありません。「%@」ではありませんか？</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; the command &apos;formats&apos; lists them.</source>
        <comment>Command line: wrong value of --to</comment>
        <translation>「%@」という出力形式はありません。コマンド「formats」で一覧を表示できます。</translation>
    </message>
    <message>
        <source>&apos;%@&apos; does not take --%@.</source>
        <comment>Command line: a command and an option that does not belong to it</comment>
        <translation>「%@」に --%@ は指定できません。</translation>
    </message>
    <message>
        <source>--%@ needs one value.</source>
        <comment>Command line: an option given twice or with an empty value</comment>
        <translation>--%@ には値を 1 つ指定してください。</translation>
    </message>
    <message>
        <source>&apos;formats&apos; takes no files.</source>
        <comment>Command line: wrong usage</comment>
        <translation>「formats」にファイルは指定できません。</translation>
    </message>
    <message>
        <source>&apos;probe&apos; takes exactly one file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>「probe」にはファイルを 1 つだけ指定してください。</translation>
    </message>
    <message>
        <source>&apos;plan&apos; takes either a video and an output file, or --info alone.</source>
        <comment>Command line: wrong usage</comment>
        <translation>「plan」には動画と出力ファイル、または --info だけを指定してください。</translation>
    </message>
    <message>
        <source>There is no video to convert.</source>
        <comment>Command line: wrong usage</comment>
        <translation>変換する動画がありません。</translation>
    </message>
    <message>
        <source>&apos;convert&apos; needs either --output or --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>「convert」には --output か --folder のどちらかが必要です。</translation>
    </message>
    <message>
        <source>Several videos can&apos;t go to one output file; use --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>複数の動画を 1 つの出力ファイルにはできません。--folder を使ってください。</translation>
    </message>
    <message>
        <source>--to NAME is missing.</source>
        <comment>Command line: wrong usage</comment>
        <translation>--to 名前 が指定されていません。</translation>
    </message>
    <message>
        <source>There is no command named &quot;%@&quot;.</source>
        <comment>Command line: wrong usage</comment>
        <translation>「%@」というコマンドはありません。</translation>
    </message>
    <message>
        <source>%@; that much was kept.</source>
        <comment>After: The converting progress was finished at 12s</comment>
        <translation>%@。そこまでの結果は残してあります。</translation>
    </message>
    <message>
        <source>The destination&apos;s folder does not exist.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先のフォルダーがありません。</translation>
    </message>
    <message>
        <source>The destination&apos;s folder is a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先のフォルダーとして指定されたものはファイルです。</translation>
    </message>
    <message>
        <source>The destination&apos;s folder may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先のフォルダーへの書き込みが許可されていません。</translation>
    </message>
    <message>
        <source>The result can&apos;t replace a video that is to be converted.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>変換結果で、これから変換する動画を置き換えることはできません。</translation>
    </message>
    <message>
        <source>The destination is a folder, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先はファイルではなくフォルダーです。</translation>
    </message>
    <message>
        <source>The destination is a link that leads nowhere.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先は参照先のないリンクです。</translation>
    </message>
    <message>
        <source>The destination is a pipe or a device, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先はファイルではなくパイプまたはデバイスです。</translation>
    </message>
    <message>
        <source>The destination exists already; --overwrite replaces it.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先はすでに存在します。置き換えるには --overwrite を指定してください。</translation>
    </message>
    <message>
        <source>The destination may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先への書き込みが許可されていません。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>そのようなファイルはありません。</translation>
    </message>
    <message>
        <source>This is a folder, not a video.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>これは動画ではなくフォルダーです。</translation>
    </message>
    <message>
        <source>The file may not be read: permission denied.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>ファイルを読み取れません: アクセスが拒否されました。</translation>
    </message>
    <message>
        <source>This is a pipe or a device, not a file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>これはファイルではなくパイプまたはデバイスです。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>The video is shorter than one second.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>動画の長さが 1 秒未満です。</translation>
    </message>
    <message>
        <source>The tool %@ is missing or can&apos;t be run.</source>
        <comment>Path of a program</comment>
        <translation>ツール %@ が見つからないか、実行できません。</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>Heading of a group of outputs</comment>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>Heading of a group of outputs</comment>
        <translation>形式</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>Heading of a group of outputs</comment>
        <translation>MP4 の画質</translation>
    </message>
    <message>
        <source>Usage: video-converter-cli formats [--json]
Lists the outputs that --to takes: devices, formats and MP4 qualities.</source>
        <comment>Help of the headless command</comment>
        <translation>使い方: video-converter-cli formats [--json]
--to に指定できる出力形式 (デバイス、形式、MP4 の画質) を一覧表示します。</translation>
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
        <translation>使い方: video-converter-cli plan --to 名前 ファイル 出力先 [--json]
        video-converter-cli plan --to 名前 --info JSONファイル [--json]
ツールのコマンドラインを、シェル用に引用符を付けて、実行せずに表示します。

  --to 名前            「formats」の一覧にある出力形式の 1 つ、または all (すべて)
  --info JSONファイル  「probe --json」で作ったファイル (- は標準入力) から動画の
                       情報を読み取り、それによって決まる引数だけを表示します
  --json               オブジェクトを 1 つ出力します (出力形式の名前と引数のリスト)</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <comment>The user stopped the program</comment>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>The output can&apos;t be written.</source>
        <comment>Standard output is a file on a full disk</comment>
        <translation>出力を書き込めません。</translation>
    </message>
    <message>
        <source>%@: converted to %@ in %@</source>
        <comment>Video, file that was made of it, time that it took</comment>
        <translation>%@: %@ に変換しました (所要時間 %@)</translation>
    </message>
    <message>
        <source>%d of %d videos converted</source>
        <comment>Sum after the conversion of several videos</comment>
        <translation>変換した動画: %d / %d</translation>
    </message>
    <message>
        <source>The file can&apos;t be opened.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>ファイルを開けません。</translation>
    </message>
    <message>
        <source>The file holds no JSON.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>ファイルに JSON が含まれていません。</translation>
    </message>
    <message>
        <source>%d ch</source>
        <comment>Number of sound channels, abbreviated</comment>
        <translation>%d ch</translation>
    </message>
    <message>
        <source>Length</source>
        <comment>Property of a video</comment>
        <translation>動画の長さ</translation>
    </message>
    <message>
        <source>Container</source>
        <comment>Property of a video</comment>
        <translation>コンテナー</translation>
    </message>
    <message>
        <source>Stream</source>
        <comment>Property of a video</comment>
        <translation>ストリーム</translation>
    </message>
    <message>
        <source>none</source>
        <comment>A video has no cover picture</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Cover</source>
        <comment>Property of a video</comment>
        <translation>カバー画像</translation>
    </message>
    <message>
        <source>%@ so far</source>
        <comment>Time that a conversion of unknown length has taken</comment>
        <translation>経過%@</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>Time that a conversion still needs</comment>
        <translation>残り%@</translation>
    </message>
    <message>
        <source>There is no space left on the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>保存先のディスクに空き容量がありません。</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <comment>Why a conversion failed</comment>
        <translation>ディスクの割り当て容量を使い切りました。</translation>
    </message>
    <message>
        <source>The destination&apos;s disk is read-only.</source>
        <comment>Why a conversion failed</comment>
        <translation>保存先のディスクは読み取り専用です。</translation>
    </message>
    <message>
        <source>Permission was denied to read the video or to write the result.</source>
        <comment>Why a conversion failed</comment>
        <translation>動画の読み取りまたは結果の書き込みが許可されませんでした。</translation>
    </message>
    <message>
        <source>The installed tool has no encoder %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>インストールされているツールにエンコーダー %@ がありません。</translation>
    </message>
    <message>
        <source>The installed tool can&apos;t write the format %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>インストールされているツールは形式 %@ で書き出せません。</translation>
    </message>
    <message>
        <source>The destination&apos;s name is too long.</source>
        <comment>Why a conversion failed</comment>
        <translation>保存先の名前が長すぎます。</translation>
    </message>
    <message>
        <source>A disk reported an error.</source>
        <comment>Why a conversion failed</comment>
        <translation>ディスクがエラーを報告しました。</translation>
    </message>
    <message>
        <source>There was not enough memory.</source>
        <comment>Why a conversion failed</comment>
        <translation>メモリーが足りませんでした。</translation>
    </message>
    <message>
        <source>The tool was silent for too long and was stopped.</source>
        <comment>Why a conversion failed</comment>
        <translation>ツールの応答が長時間なかったため、停止しました。</translation>
    </message>
    <message>
        <source>The video&apos;s data is damaged.</source>
        <comment>Why a conversion failed</comment>
        <translation>動画のデータが破損しています。</translation>
    </message>
    <message>
        <source>The tool failed: %@</source>
        <comment>Why a conversion failed; the tool&apos;s own words follow</comment>
        <translation>ツールのエラー: %@</translation>
    </message>
    <message>
        <source>The tool was killed before it was done.</source>
        <comment>Why a conversion failed</comment>
        <translation>ツールは完了する前に強制終了されました。</translation>
    </message>
    <message>
        <source>Video Converter quit unexpectedly the last time.</source>
        <comment>crash question, title</comment>
        <translation>Video Converter は前回、予期せず終了しました。</translation>
    </message>
    <message>
        <source>May a report be sent to its makers? It says where the program stopped, its version and your system; nothing about your files is in it. “Always Send” also tells them when the program starts and how it ended.</source>
        <comment>crash question, text</comment>
        <translation>開発元にレポートを送信してもよろしいですか？レポートには、プログラムが停止した箇所、プログラムのバージョン、お使いのシステムが記録されます。お客様のファイルに関する情報は一切含まれません。「常に送信」を選ぶと、プログラムの起動と、どのように終了したかも通知されます。</translation>
    </message>
    <message>
        <source>Send</source>
        <comment>crash question, button</comment>
        <translation>送信</translation>
    </message>
    <message>
        <source>Always Send</source>
        <comment>crash question, button</comment>
        <translation>常に送信</translation>
    </message>
    <message>
        <source>Don&apos;t Send</source>
        <comment>crash question, button</comment>
        <translation>送信しない</translation>
    </message>
    <message>
        <source>The converting progress was finished at %@</source>
        <comment>Error message format string when file has not been converted at full length</comment>
        <translation>変換は%@の時点で終了しました</translation>
    </message>
    <message>
        <source>Version %@</source>
        <comment>about box, with the version number</comment>
        <translation>バージョン %@</translation>
    </message>
    <message>
        <source>About %@</source>
        <comment>about box, with the program&apos;s name</comment>
        <translation>%@ について</translation>
    </message>
    <message>
        <source>Visit Web Site</source>
        <comment>button of the about box</comment>
        <translation>Web サイトを開く</translation>
    </message>
    <message>
        <source>Alert.No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Alert.Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>“%@” is a folder. Choose another name.</source>
        <comment>alert of the save panel, with the name of a folder</comment>
        <translation>「%@」はフォルダーです。別の名前を指定してください。</translation>
    </message>
    <message>
        <source>“%@” already exists. Do you want to replace it?</source>
        <comment>question of the save panel, with the name of a file</comment>
        <translation>「%@」はすでに存在します。置き換えますか？</translation>
    </message>
    <message>
        <source>Convert.savePanelTitle</source>
        <comment>title for save panel</comment>
        <translation>変換</translation>
    </message>
    <message>
        <source>Convert.savePanelPrompt</source>
        <comment>prompt for save panel</comment>
        <translation>変換</translation>
    </message>
    <message>
        <source>Convert.savePanelNameFieldLabel</source>
        <comment>name label for save panel (&lt;= 15 symbols)</comment>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>%dd %dh %dm %ds</source>
        <comment>format string for days/hours/minutes/seconds</comment>
        <translation>%d日%d時間%d分%d秒</translation>
    </message>
    <message>
        <source>%dh %dm %ds</source>
        <comment>format string for hours/minutes/seconds</comment>
        <translation>%d時間%d分%d秒</translation>
    </message>
    <message>
        <source>%dm %ds</source>
        <comment>format string for minutes/seconds</comment>
        <translation>%d分%d秒</translation>
    </message>
    <message>
        <source>%ds</source>
        <comment>format string for seconds</comment>
        <translation>%d秒</translation>
    </message>
    <message>
        <source>Video not supported</source>
        <comment>Error message &apos;Video not supported&apos;</comment>
        <translation>この動画には対応していません</translation>
    </message>
    <message>
        <source>Attention! Current converting process will be cancelled.
Are you sure you want to continue?</source>
        <comment>Cancel progress alert message text</comment>
        <translation>実行中の変換はキャンセルされます。
本当によろしいですか？</translation>
    </message>
    <message>
        <source>The video can&apos;t be converted into itself</source>
        <comment>the chosen destination is the source file</comment>
        <translation>動画をそれ自身に上書きして変換することはできません</translation>
    </message>
    <message>
        <source>Choose another name or another folder for the result.</source>
        <comment>the chosen destination is the source file</comment>
        <translation>変換結果に別の名前または別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Error processing %@</source>
        <comment>Error message on conversion failure</comment>
        <translation>%@ の処理中にエラーが発生しました</translation>
    </message>
    <message>
        <source>Converting a video</source>
        <comment>why the machine stays awake</comment>
        <translation>動画を変換中</translation>
    </message>
    <message>
        <source>%d%% – %@</source>
        <comment>window title while converting: percentage, program name</comment>
        <translation>%d%% – %@</translation>
    </message>
    <message>
        <source>%d%%, about %@ left</source>
        <comment>percentage converted and time left, such as 1m 30s</comment>
        <translation>%d%%、残り約%@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <comment>percentage converted</comment>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Convert.buttonTitle</source>
        <comment>convert button title</comment>
        <translation>変換</translation>
    </message>
    <message>
        <source>You have the newest version of Video Converter, %@.</source>
        <comment>update check</comment>
        <translation>Video Converter は最新バージョン %@ です。</translation>
    </message>
    <message>
        <source>Updates are not available in this build.</source>
        <comment>update check</comment>
        <translation>このビルドではアップデートを利用できません。</translation>
    </message>
    <message>
        <source>The list of updates could not be read. Please try again later.</source>
        <comment>update check</comment>
        <translation>アップデートの一覧を読み込めませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>An update was announced, but not by the makers of Video Converter. It is not offered.</source>
        <comment>update check: wrong signature</comment>
        <translation>アップデートの通知がありましたが、Video Converter の開発元によるものではないため、提供しません。</translation>
    </message>
    <message>
        <source>What is new</source>
        <comment>update dialog, release notes</comment>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Software Update</source>
        <comment>update dialog, title</comment>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>Video Converter %1$@ is available. You have %2$@.</source>
        <comment>update dialog: new, own version</comment>
        <translation>Video Converter %1$@ が利用可能です。現在のバージョンは %2$@ です。</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>update dialog, button</comment>
        <translation>後で</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>update dialog, button</comment>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Open Web Site</source>
        <comment>update dialog, button</comment>
        <translation>Web サイトを開く</translation>
    </message>
    <message>
        <source>Downloading version %@</source>
        <comment>update download</comment>
        <translation>バージョン %@ をダウンロード中</translation>
    </message>
    <message>
        <source>The update is in your downloads folder as “%@”. Open it to install it.</source>
        <comment>update download</comment>
        <translation>アップデートは「%@」としてダウンロードフォルダーに保存されました。開いてインストールしてください。</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <comment>update download, button</comment>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>The download was not signed by the makers of Video Converter and has been thrown away.</source>
        <comment>update download: wrong signature</comment>
        <translation>ダウンロードしたファイルは Video Converter の開発元によって署名されていないため、破棄しました。</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Please try again later.</source>
        <comment>update download</comment>
        <translation>アップデートをダウンロードできませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The result would replace another one of this run.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>この実行の別の変換結果を置き換えてしまいます。</translation>
    </message>
    <message>
        <source>The file is not a video, or it is damaged or incomplete.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>ファイルが動画でないか、破損しているか、不完全です。</translation>
    </message>
    <message>
        <source>The file does not say how long it plays.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>ファイルに再生時間の情報がありません。</translation>
    </message>
    <message>
        <source>The size of the file is unknown.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>ファイルのサイズを取得できません。</translation>
    </message>
    <message>
        <source>The file is still being written, or only part of it could be read.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>ファイルがまだ書き込み中か、一部しか読み取れませんでした。</translation>
    </message>
    <message>
        <source>Another program stopped the tool.</source>
        <comment>Why a conversion failed</comment>
        <translation>ツールがプログラムの外部から停止されました。</translation>
    </message>
    <message>
        <source>The result is too large for the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>保存先のディスクはこのサイズのファイルに対応していません。</translation>
    </message>
    <message>
        <source>The video or the destination&apos;s folder no longer exists.</source>
        <comment>Why a conversion failed</comment>
        <translation>動画または保存先のフォルダーがなくなりました。</translation>
    </message>
    <message>
        <source>The video contains nothing that this output can hold.</source>
        <comment>Why a conversion failed</comment>
        <translation>この出力形式に変換できる内容が動画に含まれていません。</translation>
    </message>
    <message>
        <source>The encoder can&apos;t handle this video&apos;s picture or sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>エンコーダーはこの動画の映像または音声をそのままでは処理できません。</translation>
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
        <translation>使い方: video-converter-cli コマンド [オプション]
動画を変換します。

  formats   --to に指定できる出力形式を一覧表示します
  probe     動画の情報を表示します
  plan      ツールのコマンドラインを実行せずに表示します
  convert   動画を変換します

各コマンドの詳細は「video-converter-cli コマンド --help」で表示されます。
すべてのコマンドで使えるオプション:
  --json      JSON で出力します
  --verbose   診断情報とツールの全出力を標準エラー出力に表示します
  -h, --help  このヘルプを表示します
  --version   バージョンを表示します

終了ステータス: 0 完了、1 変換に失敗、2 使い方の誤り、3 動画を拒否、4 保存先を拒否、
5 ツールが見つからない、128 + N シグナル N により停止 (Ctrl-C の場合は 130)。
動画が複数の場合は、変換されなかった最初の動画のステータスになります。</translation>
    </message>
    <message>
        <source>Usage: video-converter-cli probe FILE [--json]
Describes a video. With --json: everything that the tool reports (info), its length
(duration, seconds) and the size of its cover picture or null (cover).</source>
        <comment>Help of the headless command</comment>
        <translation>使い方: video-converter-cli probe ファイル [--json]
動画の情報を表示します。--json を付けると、ツールが返すすべての情報 (info)、
再生時間 (duration、seconds)、カバー画像のサイズまたは null (cover) を出力します。</translation>
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
        <translation>使い方: video-converter-cli convert --to 名前 ファイル -o 出力先
        video-converter-cli convert --to 名前 ファイル... -d フォルダー
動画を順番に変換します。Ctrl-C で停止し、未完成のファイルは残りません。

  --to 名前                「formats」の一覧にある出力形式の 1 つ
  -o, --output 出力先      書き出すファイル
  -d, --folder フォルダー  書き出すフォルダー (ファイル名は動画の名前になります)
  --overwrite              既存のファイルを置き換えます (元の動画は置き換えません)
  --json                   1 行に 1 つの JSON オブジェクトを出力します

ダッシュで始まる名前は -- の後に指定します。例:
convert --to GIF -o a.gif -- -a.mov</translation>
    </message>
    <message>
        <source>The result can&apos;t go to standard output; name a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>結果を標準出力へ書き出すことはできません。ファイルを指定してください。</translation>
    </message>
    <message>
        <source>The file&apos;s name can&apos;t be represented as text. Please rename it.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>ファイル名をテキストとして表せません。名前を変更してください。</translation>
    </message>
    <message>
        <source>The result has no moving picture, although the video has one.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>元のビデオには動画がありますが、結果には含まれていません。</translation>
    </message>
    <message>
        <source>The result has no sound, although the video has some.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>元のビデオには音声がありますが、結果には含まれていません。</translation>
    </message>
    <message>
        <source>The cover picture was left out, because this output can&apos;t show it.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>この出力では表示できないため、カバー画像は省かれました。</translation>
    </message>
    <message>
        <source>The picture was made a little smaller, because this output needs even sizes.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>この出力では偶数のサイズが必要なため、画像を少し縮小しました。</translation>
    </message>
    <message>
        <source>The sound was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>この出力ではそのまま使えないため、音声を再エンコードしました。</translation>
    </message>
    <message>
        <source>The picture was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>この出力ではそのまま使えないため、映像を再エンコードしました。</translation>
    </message>
    <message>
        <source>The video is damaged in places, first at %@.</source>
        <comment>Remark on a whole result, with a time</comment>
        <translation>ビデオにはところどころ破損があります（最初は%@）。</translation>
    </message>
    <message>
        <source>The video is damaged in places.</source>
        <comment>Remark on a whole result</comment>
        <translation>ビデオにはところどころ破損があります。</translation>
    </message>
    <message>
        <source>The older file was kept as “%@”.</source>
        <comment>Remark on a short result, with a file&apos;s name</comment>
        <translation>以前のファイルは「%@」として残されました。</translation>
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
        <translation>動画の画像</translation>
    </message>
    <message>
        <source>Examining the video</source>
        <translation>動画を解析中</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>ドロップ領域</translation>
    </message>
    <message>
        <source>Drag a video here</source>
        <translation>ここに動画をドラッグ</translation>
    </message>
    <message>
        <source>or choose it from a folder</source>
        <translation>またはフォルダーから選択</translation>
    </message>
    <message>
        <source>Choose a video to convert</source>
        <translation>変換する動画を選択</translation>
    </message>
    <message>
        <source>Choose what the video becomes</source>
        <translation>変換後の形式を選択</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>変換中…</translation>
    </message>
    <message>
        <source>Progress of the conversion</source>
        <translation>変換の進行状況</translation>
    </message>
    <message>
        <source>Cancel the conversion</source>
        <translation>変換をキャンセル</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Conversion complete</source>
        <translation>変換が完了しました</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message>
        <source>Show the converted file in its folder</source>
        <translation>変換したファイルをフォルダーで表示</translation>
    </message>
    <message>
        <source>Convert Another</source>
        <translation>別の動画を変換</translation>
    </message>
    <message>
        <source>Start over with another video</source>
        <translation>別の動画で最初からやり直す</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Convert &amp;To</source>
        <translation>変換後の形式(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>heading in the format menu</comment>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>heading in the format menu</comment>
        <translation>形式</translation>
    </message>
    <message>
        <source>Audio (MP3)</source>
        <comment>item of the format menu</comment>
        <translation>音声のみ (MP3)</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>heading in the format menu</comment>
        <translation>MP4 の画質</translation>
    </message>
    <message>
        <source>MP4 Low Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4 低画質</translation>
    </message>
    <message>
        <source>MP4 Medium Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4 中画質</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Cancel Conversion</source>
        <translation>変換をキャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>フォルダーで表示(&amp;S)</translation>
    </message>
    <message>
        <source>Convert &amp;Another</source>
        <translation>別の動画を変換(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Paste Video</source>
        <translation>動画を貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;About Video Converter</source>
        <translation>Video Converter について(&amp;A)</translation>
    </message>
</context>
</TS>
