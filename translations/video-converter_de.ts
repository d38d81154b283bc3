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
        <source>The destination exists already.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Das Ziel existiert bereits.</translation>
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
    <message>
        <source>Settings…</source>
        <comment>menu command</comment>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>This build contacts nobody.</source>
        <comment>settings</comment>
        <translation>Dieser Build kontaktiert keine Server.</translation>
    </message>
    <message>
        <source>As on the desktop</source>
        <comment>settings, choice of the language</comment>
        <translation>Systemsprache</translation>
    </message>
    <message>
        <source>Settings</source>
        <comment>title of the settings&apos; window</comment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Send anonymous usage events</source>
        <comment>settings</comment>
        <translation>Anonyme Nutzungsdaten senden</translation>
    </message>
    <message>
        <source>Look for updates once a day</source>
        <comment>settings</comment>
        <translation>Einmal täglich nach Updates suchen</translation>
    </message>
    <message>
        <source>Language:</source>
        <comment>settings</comment>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>From the next start on.</source>
        <comment>settings, language</comment>
        <translation>Gilt ab dem nächsten Programmstart.</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; did you mean &quot;%@&quot;?</source>
        <comment>Command line: wrong value of --to, and the nearest right ones</comment>
        <translation>Das Ausgabeformat „%@“ gibt es nicht. Meinten Sie „%@“?</translation>
    </message>
    <message>
        <source>&apos;plan&apos; takes a video and an output file, videos and --folder, or --info alone.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Der Befehl „plan“ erfordert ein Video und eine Ausgabedatei, Videos und --folder oder nur --info.</translation>
    </message>
    <message>
        <source>--overwrite and --skip-existing exclude each other.</source>
        <comment>Command line: wrong usage</comment>
        <translation>--overwrite und --skip-existing schließen sich gegenseitig aus.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; is no name for &quot;%@&quot;, which makes .%@ files.</source>
        <comment>Command line: name of a result, name of an output, its extension</comment>
        <translation>Der Name „%@“ passt nicht zum Ausgabeformat „%@“, das .%@-Dateien erzeugt.</translation>
    </message>
    <message>
        <source>&apos;probe&apos; needs a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Der Befehl „probe“ erfordert eine Datei.</translation>
    </message>
    <message>
        <source>--jobs takes a number, --shard two such as 2/8.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Die Option --jobs erfordert eine Zahl, --shard zwei, zum Beispiel 2/8.</translation>
    </message>
    <message>
        <source>Lists the outputs that --to takes: devices, formats and MP4 qualities.</source>
        <comment>Help: command formats</comment>
        <translation>Listet die Ausgabeformate für --to auf: Geräte, Formate und MP4-Qualitäten.</translation>
    </message>
    <message>
        <source>Describes videos. With --json: everything that the tool reports (info), the length (duration, seconds) and the size of the cover picture or null (cover).</source>
        <comment>Help: command probe</comment>
        <translation>Beschreibt Videos. Mit --json: alle Angaben des Hilfsprogramms (info), die Dauer (duration, seconds) und die Größe des Titelbilds oder null (cover).</translation>
    </message>
    <message>
        <source>Prints the tool&apos;s command line, quoted for a shell, without running it. --to all prints one for each output.</source>
        <comment>Help: command plan</comment>
        <translation>Gibt die Befehlszeile des Hilfsprogramms für eine Shell maskiert aus, ohne sie auszuführen. Mit --to all wird für jedes Ausgabeformat eine ausgegeben.</translation>
    </message>
    <message>
        <source>Converts videos. Ctrl-C cancels and leaves no unfinished file. A name that begins with a dash goes after --.</source>
        <comment>Help: command convert</comment>
        <translation>Konvertiert Videos. Strg+C bricht ab und hinterlässt keine unfertige Datei. Ein Name mit einem Minus am Anfang gehört hinter --.</translation>
    </message>
    <message>
        <source>Usage: %@</source>
        <comment>Help of the command</comment>
        <translation>Aufruf: %@</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a conversion failed or its result is not whole, 2 wrong usage, 3 video refused, 4 destination refused, 5 a tool is missing, 128 + N stopped by signal N (130 after Ctrl-C). With several videos, the first one that was not converted decides.</source>
        <comment>Help of the command</comment>
        <translation>Rückgabewert: 0 fertig, 1 Konvertierung fehlgeschlagen oder Ergebnis unvollständig, 2 falscher Aufruf, 3 Video abgelehnt, 4 Ziel abgelehnt, 5 Hilfsprogramm fehlt, 128 + N durch Signal N beendet (130 nach Strg+C). Bei mehreren Videos gilt der Wert des ersten, das nicht konvertiert wurde.</translation>
    </message>
    <message>
        <source>the output: one of those that &apos;formats&apos; lists, or an extension</source>
        <comment>Help: option --to</comment>
        <translation>das Ausgabeformat: eines von denen, die „formats“ auflistet, oder eine Dateiendung</translation>
    </message>
    <message>
        <source>the file to write</source>
        <comment>Help: option --output</comment>
        <translation>die Datei, die geschrieben wird</translation>
    </message>
    <message>
        <source>the folder to write to; the files get the videos&apos; names</source>
        <comment>Help: option --folder</comment>
        <translation>der Ordner, in den geschrieben wird; die Dateien werden nach den Videos benannt</translation>
    </message>
    <message>
        <source>takes all videos and music in a folder and below, and keeps its tree</source>
        <comment>Help: option --recursive</comment>
        <translation>nimmt alle Videos und Musikdateien in einem Ordner und dessen Unterordnern und behält die Ordnerstruktur bei</translation>
    </message>
    <message>
        <source>takes the names in a file, one a line; - is standard input</source>
        <comment>Help: option --files-from</comment>
        <translation>liest die Namen aus einer Datei, einen pro Zeile; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>names in that file end with a null character, as after find -print0</source>
        <comment>Help: option --null</comment>
        <translation>die Namen in dieser Datei enden mit einem Nullzeichen, wie nach find -print0</translation>
    </message>
    <message>
        <source>converts N videos side by side; 0 stands for as many as suit the cores</source>
        <comment>Help: option --jobs</comment>
        <translation>konvertiert N Videos gleichzeitig; 0 steht für so viele, wie zu den Prozessorkernen passen</translation>
    </message>
    <message>
        <source>replaces files that exist; a video itself is never replaced</source>
        <comment>Help: option --overwrite</comment>
        <translation>ersetzt vorhandene Dateien, aber nie ein Ausgangsvideo</translation>
    </message>
    <message>
        <source>leaves whole results that are newer than their videos alone, and makes cut ones again</source>
        <comment>Help: option --skip-existing</comment>
        <translation>behält vollständige Ergebnisse, die neuer als ihre Videos sind, und erstellt abgeschnittene neu</translation>
    </message>
    <message>
        <source>takes the K-th of N parts of the videos; the parts depend on their names alone</source>
        <comment>Help: option --shard</comment>
        <translation>nimmt den K-ten von N Teilen der Videos; die Aufteilung hängt nur von den Namen ab</translation>
    </message>
    <message>
        <source>takes a description saved by &apos;probe --json&apos; (- for standard input) and prints only the arguments that depend on it</source>
        <comment>Help: option --info</comment>
        <translation>nimmt eine mit „probe --json“ gespeicherte Beschreibung (- für die Standardeingabe) und gibt nur die davon abhängigen Argumente aus</translation>
    </message>
    <message>
        <source>prints failures only</source>
        <comment>Help: option --quiet</comment>
        <translation>gibt nur Fehler aus</translation>
    </message>
    <message>
        <source>prints JSON; &apos;convert&apos; prints one object a line</source>
        <comment>Help: option --json</comment>
        <translation>gibt JSON aus; „convert“ gibt ein Objekt pro Zeile aus</translation>
    </message>
    <message>
        <source>prints diagnostics and the tool&apos;s full output to standard error</source>
        <comment>Help: option --verbose</comment>
        <translation>gibt Diagnosen und alle Meldungen des Hilfsprogramms auf stderr aus</translation>
    </message>
    <message>
        <source>prints this help</source>
        <comment>Help: option --help</comment>
        <translation>gibt diese Hilfe aus</translation>
    </message>
    <message>
        <source>prints the version</source>
        <comment>Help: option --version</comment>
        <translation>gibt die Version aus</translation>
    </message>
    <message>
        <source>%d of %d</source>
        <comment>Number of videos that are done, and of all</comment>
        <translation>%d von %d</translation>
    </message>
    <message>
        <source>%@: %@ is there already</source>
        <comment>Video, file that was made of it in an earlier run</comment>
        <translation>%@: %@ ist bereits vorhanden</translation>
    </message>
    <message>
        <source>The list of videos can&apos;t be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>Die Liste der Videos kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>There is no such folder, or it may not be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>Der Ordner existiert nicht oder darf nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The destination&apos;s name can&apos;t be represented as text. Please choose another one.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Der Name des Ziels lässt sich nicht als Text darstellen. Bitte wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The tool can&apos;t examine videos: %@</source>
        <comment>Why no video can be converted; the tool&apos;s own words follow</comment>
        <translation>Das Hilfsprogramm kann keine Videos analysieren: %@</translation>
    </message>
    <message>
        <source>The tool needed more memory, threads or files than any video should.</source>
        <comment>Why a conversion failed</comment>
        <translation>Das Hilfsprogramm brauchte mehr Arbeitsspeicher, Threads oder Dateien, als ein Video je erfordern sollte.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the cover picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>Dieses Ausgabeformat kann das Titelbild nicht aufnehmen.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold a picture of odd width or height.</source>
        <comment>Why a conversion failed</comment>
        <translation>Dieses Ausgabeformat kann kein Bild mit ungerader Breite oder Höhe aufnehmen.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>Dieses Ausgabeformat kann den Ton des Videos nicht aufnehmen.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>Dieses Ausgabeformat kann das Bild des Videos nicht aufnehmen.</translation>
    </message>
    <message>
        <source>Drop to convert</source>
        <comment>over the window, while a file is dragged</comment>
        <translation>Zum Konvertieren ablegen</translation>
    </message>
    <message>
        <source>One video at a time: wait for the end of this one</source>
        <comment>over the window, while a file is dragged that it can&apos;t take now</comment>
        <translation>Nur ein Video auf einmal: Bitte warten Sie, bis dieses fertig ist</translation>
    </message>
    <message>
        <source>Only files can be dropped here</source>
        <comment>over the window, while something else than a file is dragged</comment>
        <translation>Hier können nur Dateien abgelegt werden</translation>
    </message>
    <message>
        <source>Next: “%@”</source>
        <comment>name of a video that came while another one is converted</comment>
        <translation>Als Nächstes: „%@“</translation>
    </message>
    <message>
        <source>Examining “%@”</source>
        <comment>name of a video</comment>
        <translation>„%@“ wird analysiert</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>time left of a conversion, such as 1m 30s</comment>
        <translation>noch %@</translation>
    </message>
    <message>
        <source>%@ – %@</source>
        <comment>window title while converting: percentage and time left, program name</comment>
        <translation>%@ – %@</translation>
    </message>
    <message>
        <source>The video has no sound</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>Das Video hat keinen Ton</translation>
    </message>
    <message>
        <source>The video has no picture</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>Das Video hat kein Bild</translation>
    </message>
    <message>
        <source>Drag the result from here into a folder or a mail</source>
        <comment>tool tip of the picture</comment>
        <translation>Ergebnis von hier in einen Ordner oder eine E-Mail ziehen</translation>
    </message>
    <message>
        <source>Open “%@” again</source>
        <comment>with the name of the last video</comment>
        <translation>„%@“ erneut öffnen</translation>
    </message>
    <message>
        <source>One video is converted at a time here. Left out: %d</source>
        <comment>several videos were dropped, with the number of the others</comment>
        <translation>Nur ein Video auf einmal. Ausgelassen: %d</translation>
    </message>
    <message>
        <source>Copy command</source>
        <comment>copies a command line that converts several videos</comment>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Second try, in another way: the first one could not work.</source>
        <comment>while converting</comment>
        <translation>Zweiter Versuch auf anderem Weg; der erste misslang.</translation>
    </message>
    <message>
        <source>Try another format</source>
        <comment>after a conversion that failed</comment>
        <translation>Anderes Format versuchen</translation>
    </message>
    <message>
        <source>Show the log</source>
        <comment>what the tool said in a conversion that failed</comment>
        <translation>Protokoll anzeigen</translation>
    </message>
    <message>
        <source>Copied</source>
        <comment>a command line is on the clipboard now</comment>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copies the sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Kopiert den Ton, dauert nur Sekunden</translation>
    </message>
    <message>
        <source>Encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Codiert den Ton neu</translation>
    </message>
    <message>
        <source>Copies the picture, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Kopiert das Bild, dauert nur Sekunden</translation>
    </message>
    <message>
        <source>Copies picture and sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Kopiert Bild und Ton, dauert nur Sekunden</translation>
    </message>
    <message>
        <source>Copies the picture, encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Kopiert das Bild, codiert den Ton neu</translation>
    </message>
    <message>
        <source>Encodes the picture anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Codiert das Bild neu</translation>
    </message>
    <message>
        <source>Encodes the picture anew, copies the sound</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Codiert das Bild neu, kopiert den Ton</translation>
    </message>
    <message>
        <source>Encodes picture and sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Codiert Bild und Ton neu</translation>
    </message>
    <message>
        <source>Copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>Ton wird kopiert</translation>
    </message>
    <message>
        <source>Encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>Ton wird codiert</translation>
    </message>
    <message>
        <source>Copying the picture</source>
        <comment>What a running conversion does</comment>
        <translation>Bild wird kopiert</translation>
    </message>
    <message>
        <source>Copying picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>Bild und Ton werden kopiert</translation>
    </message>
    <message>
        <source>Copying the picture, encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>Bild wird kopiert, Ton wird codiert</translation>
    </message>
    <message>
        <source>Encoding the picture</source>
        <comment>What a running conversion does</comment>
        <translation>Bild wird codiert</translation>
    </message>
    <message>
        <source>Encoding the picture, copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>Bild wird codiert, Ton wird kopiert</translation>
    </message>
    <message>
        <source>Encoding picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>Bild und Ton werden codiert</translation>
    </message>
    <message>
        <source>Scales to %d × %d</source>
        <comment>What an entry of the format menu does: width, height</comment>
        <translation>Skaliert auf %d&#xa0;×&#xa0;%d</translation>
    </message>
    <message>
        <source>%d × %d</source>
        <comment>width and height of a picture</comment>
        <translation>%d&#xa0;×&#xa0;%d</translation>
    </message>
    <message>
        <source>The result will take about %@.</source>
        <comment>in the save panel, with a size such as 12.3 MB</comment>
        <translation>Das Ergebnis wird etwa %@ groß.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <comment>update dialog, button</comment>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Get it where you got Video Converter from.</source>
        <comment>update dialog, when neither a download nor a web site is known</comment>
        <translation>Sie erhalten das Update dort, wo Sie Video Converter bezogen haben.</translation>
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
        <translation>Auswählen, in welches Format das Video konvertiert wird</translation>
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
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open the result in its player</source>
        <translation>Ergebnis im zugehörigen Player öffnen</translation>
    </message>
    <message>
        <source>Convert as &amp;Last Time</source>
        <translation>Konvertieren wie beim &amp;letzten Mal</translation>
    </message>
</context>
</TS>
