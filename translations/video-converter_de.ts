<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Localizable</name>
    <message>
        <source>Conversion Log</source>
        <comment>title of the log&apos;s window</comment>
        <translation>Konvertierungsprotokoll</translation>
    </message>
    <message>
        <source>Show Conversion Log</source>
        <comment>menu command, opens a window</comment>
        <translation>Konvertierungsprotokoll anzeigen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <comment>menu command</comment>
        <translation>Nach Updates suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Video to open.</source>
        <comment>help on the command line</comment>
        <translation>Zu öffnendes Video.</translation>
    </message>
    <message>
        <source>Try &apos;video-converter-cli --help&apos;.</source>
        <comment>Command line: follows a message about wrong usage</comment>
        <translation>„video-converter-cli --help“ liefert weitere Informationen.</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; did you mean &quot;%@&quot;?</source>
        <comment>Command line: wrong value of --to, and the nearest right one</comment>
        <translation>Das Ausgabeformat „%@“ gibt es nicht. Meinten Sie „%@“?</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; the command &apos;formats&apos; lists them.</source>
        <comment>Command line: wrong value of --to</comment>
        <translation>Das Ausgabeformat „%@“ gibt es nicht. Der Befehl „formats“ listet alle auf.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; does not take --%@.</source>
        <comment>Command line: a command and an option that does not belong to it</comment>
        <translation>Der Befehl „%@“ kennt die Option --%@ nicht.</translation>
    </message>
    <message>
        <source>--%@ needs one value.</source>
        <comment>Command line: an option given twice or with an empty value</comment>
        <translation>Die Option --%@ erfordert genau einen Wert.</translation>
    </message>
    <message>
        <source>&apos;formats&apos; takes no files.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Der Befehl „formats“ nimmt keine Dateien entgegen.</translation>
    </message>
    <message>
        <source>&apos;probe&apos; takes exactly one file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Der Befehl „probe“ erfordert genau eine Datei.</translation>
    </message>
    <message>
        <source>&apos;plan&apos; takes either a video and an output file, or --info alone.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Der Befehl „plan“ erfordert entweder ein Video und eine Ausgabedatei oder nur --info.</translation>
    </message>
    <message>
        <source>There is no video to convert.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Es wurde kein Video zum Konvertieren angegeben.</translation>
    </message>
    <message>
        <source>&apos;convert&apos; needs either --output or --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Der Befehl „convert“ erfordert entweder --output oder --folder.</translation>
    </message>
    <message>
        <source>Several videos can&apos;t go to one output file; use --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Mehrere Videos können nicht in einer Datei gespeichert werden. Verwenden Sie --folder.</translation>
    </message>
    <message>
        <source>--to NAME is missing.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Die Option --to NAME fehlt.</translation>
    </message>
    <message>
        <source>There is no command named &quot;%@&quot;.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Den Befehl „%@“ gibt es nicht.</translation>
    </message>
    <message>
        <source>%@; that much was kept.</source>
        <comment>After: The converting progress was finished at 12s</comment>
        <translation>%@; der bis dahin fertige Teil bleibt erhalten.</translation>
    </message>
    <message>
        <source>The destination&apos;s folder does not exist.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Der Zielordner existiert nicht.</translation>
    </message>
    <message>
        <source>The destination&apos;s folder is a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Der Zielordner ist eine Datei.</translation>
    </message>
    <message>
        <source>The destination&apos;s folder may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Keine Schreibberechtigung für den Zielordner.</translation>
    </message>
    <message>
        <source>The result can&apos;t replace a video that is to be converted.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Das Ergebnis kann kein Video ersetzen, das konvertiert werden soll.</translation>
    </message>
    <message>
        <source>The destination is a folder, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Das Ziel ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>The destination is a link that leads nowhere.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Das Ziel ist eine Verknüpfung, die ins Leere führt.</translation>
    </message>
    <message>
        <source>The destination is a pipe or a device, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Das Ziel ist eine Pipe oder ein Gerät, keine Datei.</translation>
    </message>
    <message>
        <source>The destination exists already; --overwrite replaces it.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Das Ziel existiert bereits; --overwrite ersetzt es.</translation>
    </message>
    <message>
        <source>The destination may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Keine Schreibberechtigung für das Ziel.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Die Datei existiert nicht.</translation>
    </message>
    <message>
        <source>This is a folder, not a video.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Dies ist ein Ordner, kein Video.</translation>
    </message>
    <message>
        <source>The file may not be read: permission denied.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Die Datei kann nicht gelesen werden: Zugriff verweigert.</translation>
    </message>
    <message>
        <source>This is a pipe or a device, not a file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Dies ist eine Pipe oder ein Gerät, keine Datei.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The video is shorter than one second.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Das Video ist kürzer als eine Sekunde.</translation>
    </message>
    <message>
        <source>The tool %@ is missing or can&apos;t be run.</source>
        <comment>Path of a program</comment>
        <translation>Das Hilfsprogramm %@ fehlt oder kann nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>Heading of a group of outputs</comment>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>Heading of a group of outputs</comment>
        <translation>Formate</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>Heading of a group of outputs</comment>
        <translation>MP4-Qualität</translation>
    </message>
    <message>
        <source>Usage: video-converter-cli formats [--json]
Lists the outputs that --to takes: devices, formats and MP4 qualities.</source>
        <comment>Help of the headless command</comment>
        <translation>Aufruf: video-converter-cli formats [--json]
Listet die Ausgabeformate für --to auf: Geräte, Formate und MP4-Qualitäten.</translation>
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
        <translation>Aufruf: video-converter-cli plan --to NAME DATEI AUSGABE [--json]
        video-converter-cli plan --to NAME --info JSON_DATEI [--json]
Gibt die Befehlszeile des Hilfsprogramms für eine Shell maskiert aus, ohne sie
auszuführen.

  --to NAME          das Ausgabeformat, eines von denen, die „formats“ auflistet,
                     oder all
  --info JSON_DATEI  nimmt die Beschreibung des Videos aus einer mit „probe --json“
                     erstellten Datei (- für die Standardeingabe) und gibt nur die
                     davon abhängigen Argumente aus
  --json             gibt ein Objekt aus: Name des Ausgabeformats, Liste der Argumente</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <comment>The user stopped the program</comment>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>The output can&apos;t be written.</source>
        <comment>Standard output is a file on a full disk</comment>
        <translation>Die Ausgabe konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%@: converted to %@ in %@</source>
        <comment>Video, file that was made of it, time that it took</comment>
        <translation>%1$@: in %3$@ konvertiert nach %2$@</translation>
    </message>
    <message>
        <source>%d of %d videos converted</source>
        <comment>Sum after the conversion of several videos</comment>
        <translation>%d von %d Videos konvertiert</translation>
    </message>
    <message>
        <source>The file can&apos;t be opened.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The file holds no JSON.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>Die Datei enthält kein JSON.</translation>
    </message>
    <message>
        <source>%d ch</source>
        <comment>Number of sound channels, abbreviated</comment>
        <translation>%d Kan.</translation>
    </message>
    <message>
        <source>Length</source>
        <comment>Property of a video</comment>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Container</source>
        <comment>Property of a video</comment>
        <translation>Container</translation>
    </message>
    <message>
        <source>Stream</source>
        <comment>Property of a video</comment>
        <translation>Spur</translation>
    </message>
    <message>
        <source>none</source>
        <comment>A video has no cover picture</comment>
        <translation>keines</translation>
    </message>
    <message>
        <source>Cover</source>
        <comment>Property of a video</comment>
        <translation>Titelbild</translation>
    </message>
    <message>
        <source>%@ so far</source>
        <comment>Time that a conversion of unknown length has taken</comment>
        <translation>bisher %@</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>Time that a conversion still needs</comment>
        <translation>noch %@</translation>
    </message>
    <message>
        <source>There is no space left on the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>Auf dem Zieldatenträger ist kein Speicherplatz mehr frei.</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <comment>Why a conversion failed</comment>
        <translation>Das Speicherkontingent ist erschöpft.</translation>
    </message>
    <message>
        <source>The destination&apos;s disk is read-only.</source>
        <comment>Why a conversion failed</comment>
        <translation>Der Zieldatenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Permission was denied to read the video or to write the result.</source>
        <comment>Why a conversion failed</comment>
        <translation>Keine Berechtigung, das Video zu lesen oder das Ergebnis zu schreiben.</translation>
    </message>
    <message>
        <source>The installed tool has no encoder %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>Das installierte Hilfsprogramm enthält den Encoder %@ nicht.</translation>
    </message>
    <message>
        <source>The installed tool can&apos;t write the format %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>Das installierte Hilfsprogramm kann das Format %@ nicht schreiben.</translation>
    </message>
    <message>
        <source>The destination&apos;s name is too long.</source>
        <comment>Why a conversion failed</comment>
        <translation>Der Name des Ziels ist zu lang.</translation>
    </message>
    <message>
        <source>A disk reported an error.</source>
        <comment>Why a conversion failed</comment>
        <translation>Ein Datenträger hat einen Fehler gemeldet.</translation>
    </message>
    <message>
        <source>There was not enough memory.</source>
        <comment>Why a conversion failed</comment>
        <translation>Es war nicht genügend Arbeitsspeicher vorhanden.</translation>
    </message>
    <message>
        <source>The tool was silent for too long and was stopped.</source>
        <comment>Why a conversion failed</comment>
        <translation>Das Hilfsprogramm hat zu lange nicht reagiert und wurde beendet.</translation>
    </message>
    <message>
        <source>The video&apos;s data is damaged.</source>
        <comment>Why a conversion failed</comment>
        <translation>Die Daten des Videos sind beschädigt.</translation>
    </message>
    <message>
        <source>The tool failed: %@</source>
        <comment>Why a conversion failed; the tool&apos;s own words follow</comment>
        <translation>Fehler des Hilfsprogramms: %@</translation>
    </message>
    <message>
        <source>The tool was killed before it was done.</source>
        <comment>Why a conversion failed</comment>
        <translation>Das Hilfsprogramm wurde gewaltsam beendet, bevor es fertig war.</translation>
    </message>
    <message>
        <source>Video Converter quit unexpectedly the last time.</source>
        <comment>crash question, title</comment>
        <translation>Video Converter wurde beim letzten Mal unerwartet beendet.</translation>
    </message>
    <message>
        <source>May a report be sent to its makers? It says where the program stopped, its version and your system; nothing about your files is in it. “Always Send” also tells them when the program starts and how it ended.</source>
        <comment>crash question, text</comment>
        <translation>Möchten Sie einen Bericht an die Entwickler senden? Er enthält die Stelle, an der das Programm stehen blieb, die Programmversion und Angaben zu Ihrem System, aber nichts über Ihre Dateien. Mit „Immer senden“ erfahren die Entwickler auch, wann das Programm startet und wie es beendet wurde.</translation>
    </message>
    <message>
        <source>Send</source>
        <comment>crash question, button</comment>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Always Send</source>
        <comment>crash question, button</comment>
        <translation>Immer senden</translation>
    </message>
    <message>
        <source>Don&apos;t Send</source>
        <comment>crash question, button</comment>
        <translation>Nicht senden</translation>
    </message>
    <message>
        <source>The converting progress was finished at %@</source>
        <comment>Error message format string when file has not been converted at full length</comment>
        <translation>Die Konvertierung endete bei %@</translation>
    </message>
    <message>
        <source>Version %@</source>
        <comment>about box, with the version number</comment>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>About %@</source>
        <comment>about box, with the program&apos;s name</comment>
        <translation>Über %@</translation>
    </message>
    <message>
        <source>Visit Web Site</source>
        <comment>button of the about box</comment>
        <translation>Website besuchen</translation>
    </message>
    <message>
        <source>Alert.No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Alert.Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>“%@” is a folder. Choose another name.</source>
        <comment>alert of the save panel, with the name of a folder</comment>
        <translation>„%@“ ist ein Ordner. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>“%@” already exists. Do you want to replace it?</source>
        <comment>question of the save panel, with the name of a file</comment>
        <translation>Die Datei „%@“ existiert bereits. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>Convert.savePanelTitle</source>
        <comment>title for save panel</comment>
        <translation>Konvertieren</translation>
    </message>
    <message>
        <source>Convert.savePanelPrompt</source>
        <comment>prompt for save panel</comment>
        <translation>Konvertieren</translation>
    </message>
    <message>
        <source>Convert.savePanelNameFieldLabel</source>
        <comment>name label for save panel (&lt;= 15 symbols)</comment>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>%dd %dh %dm %ds</source>
        <comment>format string for days/hours/minutes/seconds</comment>
        <translation>%d&#xa0;d %d&#xa0;h %d&#xa0;min %d&#xa0;s</translation>
    </message>
    <message>
        <source>%dh %dm %ds</source>
        <comment>format string for hours/minutes/seconds</comment>
        <translation>%d&#xa0;h %d&#xa0;min %d&#xa0;s</translation>
    </message>
    <message>
        <source>%dm %ds</source>
        <comment>format string for minutes/seconds</comment>
        <translation>%d&#xa0;min %d&#xa0;s</translation>
    </message>
    <message>
        <source>%ds</source>
        <comment>format string for seconds</comment>
        <translation>%d&#xa0;s</translation>
    </message>
    <message>
        <source>Video not supported</source>
        <comment>Error message &apos;Video not supported&apos;</comment>
        <translation>Das Video wird nicht unterstützt</translation>
    </message>
    <message>
        <source>Attention! Current converting process will be cancelled.
Are you sure you want to continue?</source>
        <comment>Cancel progress alert message text</comment>
        <translation>Achtung! Die laufende Konvertierung wird abgebrochen.
Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>The video can&apos;t be converted into itself</source>
        <comment>the chosen destination is the source file</comment>
        <translation>Das Video kann nicht in sich selbst konvertiert werden</translation>
    </message>
    <message>
        <source>Choose another name or another folder for the result.</source>
        <comment>the chosen destination is the source file</comment>
        <translation>Wählen Sie für das Ergebnis einen anderen Namen oder Ordner.</translation>
    </message>
    <message>
        <source>Error processing %@</source>
        <comment>Error message on conversion failure</comment>
        <translation>Fehler beim Verarbeiten von %@</translation>
    </message>
    <message>
        <source>Converting a video</source>
        <comment>why the machine stays awake</comment>
        <translation>Ein Video wird konvertiert</translation>
    </message>
    <message>
        <source>%d%% – %@</source>
        <comment>window title while converting: percentage, program name</comment>
        <translation>%d&#xa0;%% – %@</translation>
    </message>
    <message>
        <source>%d%%, about %@ left</source>
        <comment>percentage converted and time left, such as 1m 30s</comment>
        <translation>%d&#xa0;%%, noch etwa %@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <comment>percentage converted</comment>
        <translation>%d&#xa0;%%</translation>
    </message>
    <message>
        <source>Convert.buttonTitle</source>
        <comment>convert button title</comment>
        <translation>Konvertieren</translation>
    </message>
    <message>
        <source>You have the newest version of Video Converter, %@.</source>
        <comment>update check</comment>
        <translation>Sie haben die neueste Version von Video Converter (%@).</translation>
    </message>
    <message>
        <source>Updates are not available in this build.</source>
        <comment>update check</comment>
        <translation>Für diesen Build sind keine Updates verfügbar.</translation>
    </message>
    <message>
        <source>The list of updates could not be read. Please try again later.</source>
        <comment>update check</comment>
        <translation>Die Liste der Updates konnte nicht gelesen werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>An update was announced, but not by the makers of Video Converter. It is not offered.</source>
        <comment>update check: wrong signature</comment>
        <translation>Es wurde ein Update angekündigt, das nicht von den Entwicklern von Video Converter stammt. Es wird nicht angeboten.</translation>
    </message>
    <message>
        <source>What is new</source>
        <comment>update dialog, release notes</comment>
        <translation>Neuerungen</translation>
    </message>
    <message>
        <source>Software Update</source>
        <comment>update dialog, title</comment>
        <translation>Softwareupdate</translation>
    </message>
    <message>
        <source>Video Converter %1$@ is available. You have %2$@.</source>
        <comment>update dialog: new, own version</comment>
        <translation>Video Converter %1$@ ist verfügbar. Sie haben Version %2$@.</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>update dialog, button</comment>
        <translation>Später</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>update dialog, button</comment>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Open Web Site</source>
        <comment>update dialog, button</comment>
        <translation>Website öffnen</translation>
    </message>
    <message>
        <source>Downloading version %@</source>
        <comment>update download</comment>
        <translation>Version %@ wird heruntergeladen</translation>
    </message>
    <message>
        <source>The update is in your downloads folder as “%@”. Open it to install it.</source>
        <comment>update download</comment>
        <translation>Das Update liegt als „%@“ in Ihrem Downloadordner. Öffnen Sie es, um es zu installieren.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <comment>update download, button</comment>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>The download was not signed by the makers of Video Converter and has been thrown away.</source>
        <comment>update download: wrong signature</comment>
        <translation>Der Download war nicht von den Entwicklern von Video Converter signiert und wurde verworfen.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Please try again later.</source>
        <comment>update download</comment>
        <translation>Das Update konnte nicht heruntergeladen werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The result would replace another one of this run.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Das Ergebnis würde ein anderes dieses Aufrufs ersetzen.</translation>
    </message>
    <message>
        <source>The file is not a video, or it is damaged or incomplete.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Die Datei ist kein Video, oder sie ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>The file does not say how long it plays.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Die Datei gibt ihre Dauer nicht an.</translation>
    </message>
    <message>
        <source>The size of the file is unknown.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Die Größe der Datei konnte nicht ermittelt werden.</translation>
    </message>
    <message>
        <source>The file is still being written, or only part of it could be read.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Die Datei wird noch geschrieben oder konnte nur teilweise gelesen werden.</translation>
    </message>
    <message>
        <source>Another program stopped the tool.</source>
        <comment>Why a conversion failed</comment>
        <translation>Das Hilfsprogramm wurde von außen beendet.</translation>
    </message>
    <message>
        <source>The result is too large for the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>Der Zieldatenträger unterstützt keine so großen Dateien.</translation>
    </message>
    <message>
        <source>The video or the destination&apos;s folder no longer exists.</source>
        <comment>Why a conversion failed</comment>
        <translation>Das Video oder der Zielordner ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>The video contains nothing that this output can hold.</source>
        <comment>Why a conversion failed</comment>
        <translation>Das Video enthält nichts, was dieses Ausgabeformat aufnehmen kann.</translation>
    </message>
    <message>
        <source>The encoder can&apos;t handle this video&apos;s picture or sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>Der Encoder kann Bild oder Ton des Videos so nicht verarbeiten.</translation>
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
        <translation>Aufruf: video-converter-cli BEFEHL [OPTIONEN]
Konvertiert Videos.

  formats   listet die Ausgabeformate für --to auf
  probe     beschreibt ein Video
  plan      gibt die Befehlszeile des Hilfsprogramms aus, ohne sie auszuführen
  convert   konvertiert Videos

„video-converter-cli BEFEHL --help“ sagt mehr zu einem Befehl. Alle Befehle kennen:
  --json      gibt JSON aus
  --verbose   gibt Diagnosen und alle Meldungen des Hilfsprogramms auf stderr aus
  -h, --help  gibt diese Hilfe aus
  --version   gibt die Version aus

Rückgabewert: 0 fertig, 1 Konvertierung fehlgeschlagen, 2 falscher Aufruf, 3 Video
abgelehnt, 4 Ziel abgelehnt, 5 Hilfsprogramme fehlen, 128 + N durch Signal N beendet
(130 nach Strg+C).
Bei mehreren Videos gilt der Wert des ersten, das nicht konvertiert wurde.</translation>
    </message>
    <message>
        <source>Usage: video-converter-cli probe FILE [--json]
Describes a video. With --json: everything that the tool reports (info), its length
(duration, seconds) and the size of its cover picture or null (cover).</source>
        <comment>Help of the headless command</comment>
        <translation>Aufruf: video-converter-cli probe DATEI [--json]
Beschreibt ein Video. Mit --json: alle Angaben des Hilfsprogramms (info), die Dauer
(duration, seconds) und die Größe des Titelbilds oder null (cover).</translation>
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
        <translation>Aufruf: video-converter-cli convert --to NAME DATEI -o AUSGABE
        video-converter-cli convert --to NAME DATEI... -d ORDNER
Konvertiert Videos nacheinander. Strg+C bricht ab und hinterlässt keine unfertige Datei.

  --to NAME             das Ausgabeformat, eines von denen, die „formats“ auflistet
  -o, --output AUSGABE  die Datei, die geschrieben wird
  -d, --folder ORDNER   der Ordner, in den geschrieben wird; die Dateien werden nach
                        den Videos benannt
  --overwrite           ersetzt vorhandene Dateien, aber nie ein Ausgangsvideo
  --json                gibt ein JSON-Objekt pro Zeile aus

Ein Name mit einem Minus am Anfang gehört hinter --, zum Beispiel:
convert --to GIF -o a.gif -- -a.mov</translation>
    </message>
    <message>
        <source>The result can&apos;t go to standard output; name a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Das Ergebnis kann nicht auf die Standardausgabe gehen. Geben Sie eine Datei an.</translation>
    </message>
    <message>
        <source>The file&apos;s name can&apos;t be represented as text. Please rename it.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Der Name der Datei lässt sich nicht als Text darstellen. Bitte benennen Sie sie um.</translation>
    </message>
    <message>
        <source>The result has no moving picture, although the video has one.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>Das Ergebnis enthält kein bewegtes Bild, obwohl das Video eines hat.</translation>
    </message>
    <message>
        <source>The result has no sound, although the video has some.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>Das Ergebnis hat keinen Ton, obwohl das Video welchen hat.</translation>
    </message>
    <message>
        <source>The cover picture was left out, because this output can&apos;t show it.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>Das Titelbild wurde weggelassen, weil dieses Ausgabeformat es nicht anzeigen kann.</translation>
    </message>
    <message>
        <source>The picture was made a little smaller, because this output needs even sizes.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>Das Bild wurde etwas verkleinert, weil dieses Ausgabeformat gerade Abmessungen braucht.</translation>
    </message>
    <message>
        <source>The sound was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>Der Ton wurde neu codiert, weil dieses Ausgabeformat ihn nicht unverändert aufnehmen kann.</translation>
    </message>
    <message>
        <source>The picture was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>Das Bild wurde neu codiert, weil dieses Ausgabeformat es nicht unverändert aufnehmen kann.</translation>
    </message>
    <message>
        <source>The video is damaged in places, first at %@.</source>
        <comment>Remark on a whole result, with a time</comment>
        <translation>Das Video ist stellenweise beschädigt, zuerst bei %@.</translation>
    </message>
    <message>
        <source>The video is damaged in places.</source>
        <comment>Remark on a whole result</comment>
        <translation>Das Video ist stellenweise beschädigt.</translation>
    </message>
    <message>
        <source>The older file was kept as “%@”.</source>
        <comment>Remark on a short result, with a file&apos;s name</comment>
        <translation>Die ältere Datei wurde als „%@“ aufbewahrt.</translation>
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
        <translation>Bild aus dem Video</translation>
    </message>
    <message>
        <source>Examining the video</source>
        <translation>Das Video wird analysiert</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>Ablagebereich</translation>
    </message>
    <message>
        <source>Drag a video here</source>
        <translation>Video hierher ziehen</translation>
    </message>
    <message>
        <source>or choose it from a folder</source>
        <translation>oder aus einem Ordner auswählen</translation>
    </message>
    <message>
        <source>Choose a video to convert</source>
        <translation>Video zum Konvertieren auswählen</translation>
    </message>
    <message>
        <source>Choose what the video becomes</source>
        <translation>Auswählen, in was das Video konvertiert wird</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Wird konvertiert&#xa0;…</translation>
    </message>
    <message>
        <source>Progress of the conversion</source>
        <translation>Fortschritt der Konvertierung</translation>
    </message>
    <message>
        <source>Cancel the conversion</source>
        <translation>Konvertierung abbrechen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Conversion complete</source>
        <translation>Konvertierung abgeschlossen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Show the converted file in its folder</source>
        <translation>Konvertierte Datei in ihrem Ordner anzeigen</translation>
    </message>
    <message>
        <source>Convert Another</source>
        <translation>Weiteres Video konvertieren</translation>
    </message>
    <message>
        <source>Start over with another video</source>
        <translation>Mit einem anderen Video neu beginnen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Convert &amp;To</source>
        <translation>Konvertieren &amp;in</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>heading in the format menu</comment>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>heading in the format menu</comment>
        <translation>Formate</translation>
    </message>
    <message>
        <source>Audio (MP3)</source>
        <comment>item of the format menu</comment>
        <translation>Audio (MP3)</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>heading in the format menu</comment>
        <translation>MP4-Qualität</translation>
    </message>
    <message>
        <source>MP4 Low Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4, niedrige Qualität</translation>
    </message>
    <message>
        <source>MP4 Medium Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4, mittlere Qualität</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Cancel Conversion</source>
        <translation>Konvertierung &amp;abbrechen</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>Im Ordner an&amp;zeigen</translation>
    </message>
    <message>
        <source>Convert &amp;Another</source>
        <translation>&amp;Weiteres Video konvertieren</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Paste Video</source>
        <translation>Video &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;About Video Converter</source>
        <translation>&amp;Über Video Converter</translation>
    </message>
</context>
</TS>
