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
        <source>The destination exists already.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先はすでに存在します。</translation>
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
    <message>
        <source>Settings…</source>
        <comment>menu command</comment>
        <translation>設定…</translation>
    </message>
    <message>
        <source>This build contacts nobody.</source>
        <comment>settings</comment>
        <translation>このビルドは外部と一切通信しません。</translation>
    </message>
    <message>
        <source>As on the desktop</source>
        <comment>settings, choice of the language</comment>
        <translation>システムの設定に合わせる</translation>
    </message>
    <message>
        <source>Settings</source>
        <comment>title of the settings&apos; window</comment>
        <translation>設定</translation>
    </message>
    <message>
        <source>Send anonymous usage events</source>
        <comment>settings</comment>
        <translation>匿名の利用状況を送信</translation>
    </message>
    <message>
        <source>Look for updates once a day</source>
        <comment>settings</comment>
        <translation>アップデートを 1 日 1 回確認</translation>
    </message>
    <message>
        <source>Language:</source>
        <comment>settings</comment>
        <translation>言語:</translation>
    </message>
    <message>
        <source>From the next start on.</source>
        <comment>settings, language</comment>
        <translation>次回の起動時から有効になります。</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; did you mean &quot;%@&quot;?</source>
        <comment>Command line: wrong value of --to, and the nearest right ones</comment>
        <translation>「%@」という出力形式はありません。「%@」ではありませんか？</translation>
    </message>
    <message>
        <source>&apos;plan&apos; takes a video and an output file, videos and --folder, or --info alone.</source>
        <comment>Command line: wrong usage</comment>
        <translation>「plan」には動画と出力ファイル、動画と --folder、または --info だけを指定してください。</translation>
    </message>
    <message>
        <source>--overwrite and --skip-existing exclude each other.</source>
        <comment>Command line: wrong usage</comment>
        <translation>--overwrite と --skip-existing は同時に指定できません。</translation>
    </message>
    <message>
        <source>&quot;%@&quot; is no name for &quot;%@&quot;, which makes .%@ files.</source>
        <comment>Command line: name of a result, name of an output, its extension</comment>
        <translation>「%@」は「%@」の出力ファイル名に使えません (作成されるのは .%@ ファイルです)。</translation>
    </message>
    <message>
        <source>&apos;probe&apos; needs a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>「probe」にはファイルを指定してください。</translation>
    </message>
    <message>
        <source>--jobs takes a number, --shard two such as 2/8.</source>
        <comment>Command line: wrong usage</comment>
        <translation>--jobs には数値を 1 つ、--shard には 2/8 のように 2 つ指定してください。</translation>
    </message>
    <message>
        <source>Lists the outputs that --to takes: devices, formats and MP4 qualities.</source>
        <comment>Help: command formats</comment>
        <translation>--to に指定できる出力形式 (デバイス、形式、MP4 の画質) を一覧表示します。</translation>
    </message>
    <message>
        <source>Describes videos. With --json: everything that the tool reports (info), the length (duration, seconds) and the size of the cover picture or null (cover).</source>
        <comment>Help: command probe</comment>
        <translation>動画の情報を表示します。--json を付けると、ツールが返すすべての情報 (info)、再生時間 (duration、seconds)、カバー画像のサイズまたは null (cover) を出力します。</translation>
    </message>
    <message>
        <source>Prints the tool&apos;s command line, quoted for a shell, without running it. --to all prints one for each output.</source>
        <comment>Help: command plan</comment>
        <translation>ツールのコマンドラインを、シェル用に引用符を付けて、実行せずに表示します。--to all を指定すると、出力形式ごとに 1 つずつ表示します。</translation>
    </message>
    <message>
        <source>Converts videos. Ctrl-C cancels and leaves no unfinished file. A name that begins with a dash goes after --.</source>
        <comment>Help: command convert</comment>
        <translation>動画を変換します。Ctrl-C でキャンセルし、未完成のファイルは残りません。ダッシュで始まる名前は -- の後に指定します。</translation>
    </message>
    <message>
        <source>Usage: %@</source>
        <comment>Help of the command</comment>
        <translation>使い方: %@</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a conversion failed or its result is not whole, 2 wrong usage, 3 video refused, 4 destination refused, 5 a tool is missing, 128 + N stopped by signal N (130 after Ctrl-C). With several videos, the first one that was not converted decides.</source>
        <comment>Help of the command</comment>
        <translation>終了ステータス: 0 完了、1 変換に失敗または結果が不完全、2 使い方の誤り、3 動画を拒否、4 保存先を拒否、5 ツールが見つからない、128 + N シグナル N により停止 (Ctrl-C の場合は 130)。動画が複数の場合は、変換されなかった最初の動画のステータスになります。</translation>
    </message>
    <message>
        <source>the output: one of those that &apos;formats&apos; lists, or an extension</source>
        <comment>Help: option --to</comment>
        <translation>出力形式 (「formats」の一覧にある 1 つ、または拡張子)</translation>
    </message>
    <message>
        <source>the file to write</source>
        <comment>Help: option --output</comment>
        <translation>書き出すファイル</translation>
    </message>
    <message>
        <source>the folder to write to; the files get the videos&apos; names</source>
        <comment>Help: option --folder</comment>
        <translation>書き出すフォルダー (ファイル名は動画の名前になります)</translation>
    </message>
    <message>
        <source>takes all videos and music in a folder and below, and keeps its tree</source>
        <comment>Help: option --recursive</comment>
        <translation>フォルダー以下のすべての動画と音楽を対象とし、フォルダー構成を保ちます</translation>
    </message>
    <message>
        <source>takes the names in a file, one a line; - is standard input</source>
        <comment>Help: option --files-from</comment>
        <translation>ファイルから名前を 1 行に 1 つずつ読み取ります (- は標準入力)</translation>
    </message>
    <message>
        <source>names in that file end with a null character, as after find -print0</source>
        <comment>Help: option --null</comment>
        <translation>そのファイル内の名前を、find -print0 の出力のようにヌル文字で区切ります</translation>
    </message>
    <message>
        <source>converts N videos side by side; 0 stands for as many as suit the cores</source>
        <comment>Help: option --jobs</comment>
        <translation>N 個の動画を並行して変換します (0 はコア数に合わせます)</translation>
    </message>
    <message>
        <source>replaces files that exist; a video itself is never replaced</source>
        <comment>Help: option --overwrite</comment>
        <translation>既存のファイルを置き換えます (元の動画は置き換えません)</translation>
    </message>
    <message>
        <source>leaves whole results that are newer than their videos alone, and makes cut ones again</source>
        <comment>Help: option --skip-existing</comment>
        <translation>元の動画より新しい完全な結果はそのまま残し、途中で切れた結果は作り直します</translation>
    </message>
    <message>
        <source>takes the K-th of N parts of the videos; the parts depend on their names alone</source>
        <comment>Help: option --shard</comment>
        <translation>動画を N 個に分けたうちの K 番目を処理します (分け方は名前だけで決まります)</translation>
    </message>
    <message>
        <source>takes a description saved by &apos;probe --json&apos; (- for standard input) and prints only the arguments that depend on it</source>
        <comment>Help: option --info</comment>
        <translation>「probe --json」で保存した情報 (- は標準入力) を読み取り、それによって決まる引数だけを表示します</translation>
    </message>
    <message>
        <source>prints failures only</source>
        <comment>Help: option --quiet</comment>
        <translation>失敗だけを表示します</translation>
    </message>
    <message>
        <source>prints JSON; &apos;convert&apos; prints one object a line</source>
        <comment>Help: option --json</comment>
        <translation>JSON で出力します (「convert」は 1 行に 1 つのオブジェクトを出力)</translation>
    </message>
    <message>
        <source>prints diagnostics and the tool&apos;s full output to standard error</source>
        <comment>Help: option --verbose</comment>
        <translation>診断情報とツールの全出力を標準エラー出力に表示します</translation>
    </message>
    <message>
        <source>prints this help</source>
        <comment>Help: option --help</comment>
        <translation>このヘルプを表示します</translation>
    </message>
    <message>
        <source>prints the version</source>
        <comment>Help: option --version</comment>
        <translation>バージョンを表示します</translation>
    </message>
    <message>
        <source>%d of %d</source>
        <comment>Number of videos that are done, and of all</comment>
        <translation>%d / %d</translation>
    </message>
    <message>
        <source>%@: %@ is there already</source>
        <comment>Video, file that was made of it in an earlier run</comment>
        <translation>%@: %@ はすでにあります</translation>
    </message>
    <message>
        <source>The list of videos can&apos;t be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>動画の一覧を読み取れません。</translation>
    </message>
    <message>
        <source>There is no such folder, or it may not be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>フォルダーがないか、読み取りが許可されていません。</translation>
    </message>
    <message>
        <source>The destination&apos;s name can&apos;t be represented as text. Please choose another one.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>保存先の名前をテキストとして表せません。別の名前を指定してください。</translation>
    </message>
    <message>
        <source>The tool can&apos;t examine videos: %@</source>
        <comment>Why no video can be converted; the tool&apos;s own words follow</comment>
        <translation>ツールで動画を解析できません: %@</translation>
    </message>
    <message>
        <source>The tool needed more memory, threads or files than any video should.</source>
        <comment>Why a conversion failed</comment>
        <translation>ツールが、動画の処理に必要な範囲を超えるメモリー、スレッド、またはファイルを使おうとしました。</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the cover picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>この出力形式にはカバー画像を含められません。</translation>
    </message>
    <message>
        <source>This output can&apos;t hold a picture of odd width or height.</source>
        <comment>Why a conversion failed</comment>
        <translation>この出力形式は、幅または高さが奇数の映像に対応していません。</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>この出力形式にはこの動画の音声を含められません。</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>この出力形式にはこの動画の映像を含められません。</translation>
    </message>
    <message>
        <source>Drop to convert</source>
        <comment>over the window, while a file is dragged</comment>
        <translation>ドロップして変換</translation>
    </message>
    <message>
        <source>One video at a time: wait for the end of this one</source>
        <comment>over the window, while a file is dragged that it can&apos;t take now</comment>
        <translation>一度に変換できる動画は 1 つです。変換が終わるまでお待ちください</translation>
    </message>
    <message>
        <source>Only files can be dropped here</source>
        <comment>over the window, while something else than a file is dragged</comment>
        <translation>ここにはファイルだけをドロップできます</translation>
    </message>
    <message>
        <source>Next: “%@”</source>
        <comment>name of a video that came while another one is converted</comment>
        <translation>次: 「%@」</translation>
    </message>
    <message>
        <source>Examining “%@”</source>
        <comment>name of a video</comment>
        <translation>「%@」を解析中</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>time left of a conversion, such as 1m 30s</comment>
        <translation>残り%@</translation>
    </message>
    <message>
        <source>%@ – %@</source>
        <comment>window title while converting: percentage and time left, program name</comment>
        <translation>%@ – %@</translation>
    </message>
    <message>
        <source>The video has no sound</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>動画に音声がありません</translation>
    </message>
    <message>
        <source>The video has no picture</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>動画に映像がありません</translation>
    </message>
    <message>
        <source>Drag the result from here into a folder or a mail</source>
        <comment>tool tip of the picture</comment>
        <translation>変換結果をここからフォルダーやメールにドラッグできます</translation>
    </message>
    <message>
        <source>Open “%@” again</source>
        <comment>with the name of the last video</comment>
        <translation>「%@」をもう一度開く</translation>
    </message>
    <message>
        <source>One video is converted at a time here. Left out: %d</source>
        <comment>several videos were dropped, with the number of the others</comment>
        <translation>ここで一度に変換できる動画は 1 つです。除外した動画: %d</translation>
    </message>
    <message>
        <source>Copy command</source>
        <comment>copies a command line that converts several videos</comment>
        <translation>コマンドをコピー</translation>
    </message>
    <message>
        <source>Second try, in another way: the first one could not work.</source>
        <comment>while converting</comment>
        <translation>最初の試行に失敗したため、別の方法で再試行しています。</translation>
    </message>
    <message>
        <source>Try another format</source>
        <comment>after a conversion that failed</comment>
        <translation>別の形式を試す</translation>
    </message>
    <message>
        <source>Show the log</source>
        <comment>what the tool said in a conversion that failed</comment>
        <translation>ログを表示</translation>
    </message>
    <message>
        <source>Copied</source>
        <comment>a command line is on the clipboard now</comment>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Copies the sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>音声をコピー (数秒で完了)</translation>
    </message>
    <message>
        <source>Encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>音声を再エンコード</translation>
    </message>
    <message>
        <source>Copies the picture, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>映像をコピー (数秒で完了)</translation>
    </message>
    <message>
        <source>Copies picture and sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>映像と音声をコピー (数秒で完了)</translation>
    </message>
    <message>
        <source>Copies the picture, encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>映像をコピー、音声を再エンコード</translation>
    </message>
    <message>
        <source>Encodes the picture anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>映像を再エンコード</translation>
    </message>
    <message>
        <source>Encodes the picture anew, copies the sound</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>映像を再エンコード、音声をコピー</translation>
    </message>
    <message>
        <source>Encodes picture and sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>映像と音声を再エンコード</translation>
    </message>
    <message>
        <source>Copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>音声をコピー中</translation>
    </message>
    <message>
        <source>Encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>音声をエンコード中</translation>
    </message>
    <message>
        <source>Copying the picture</source>
        <comment>What a running conversion does</comment>
        <translation>映像をコピー中</translation>
    </message>
    <message>
        <source>Copying picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>映像と音声をコピー中</translation>
    </message>
    <message>
        <source>Copying the picture, encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>映像をコピー中、音声をエンコード中</translation>
    </message>
    <message>
        <source>Encoding the picture</source>
        <comment>What a running conversion does</comment>
        <translation>映像をエンコード中</translation>
    </message>
    <message>
        <source>Encoding the picture, copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>映像をエンコード中、音声をコピー中</translation>
    </message>
    <message>
        <source>Encoding picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>映像と音声をエンコード中</translation>
    </message>
    <message>
        <source>Scales to %d × %d</source>
        <comment>What an entry of the format menu does: width, height</comment>
        <translation>%d × %d にサイズ変更</translation>
    </message>
    <message>
        <source>%d × %d</source>
        <comment>width and height of a picture</comment>
        <translation>%d × %d</translation>
    </message>
    <message>
        <source>The result will take about %@.</source>
        <comment>in the save panel, with a size such as 12.3 MB</comment>
        <translation>変換結果のサイズは約 %@ です。</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <comment>update dialog, button</comment>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Get it where you got Video Converter from.</source>
        <comment>update dialog, when neither a download nor a web site is known</comment>
        <translation>Video Converter の入手元から入手してください。</translation>
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
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open the result in its player</source>
        <translation>変換結果をプレーヤーで開く</translation>
    </message>
    <message>
        <source>Convert as &amp;Last Time</source>
        <translation>前回と同じように変換(&amp;L)</translation>
    </message>
</context>
</TS>
