<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Localizable</name>
    <message>
        <source>Conversion Log</source>
        <comment>title of the log&apos;s window</comment>
        <translation>Journal de conversion</translation>
    </message>
    <message>
        <source>Show Conversion Log</source>
        <comment>menu command, opens a window</comment>
        <translation>Afficher le journal de conversion</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <comment>menu command</comment>
        <translation>Rechercher les mises à jour…</translation>
    </message>
    <message>
        <source>Video to open.</source>
        <comment>help on the command line</comment>
        <translation>Vidéo à ouvrir.</translation>
    </message>
    <message>
        <source>Try &apos;video-converter-cli --help&apos;.</source>
        <comment>Command line: follows a message about wrong usage</comment>
        <translation>Saisissez «&#xa0;video-converter-cli --help&#xa0;» pour plus d’informations.</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; the command &apos;formats&apos; lists them.</source>
        <comment>Command line: wrong value of --to</comment>
        <translation>Le format de sortie «&#xa0;%@&#xa0;» n’existe pas. La commande «&#xa0;formats&#xa0;» en donne la liste.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; does not take --%@.</source>
        <comment>Command line: a command and an option that does not belong to it</comment>
        <translation>La commande «&#xa0;%@&#xa0;» n’accepte pas l’option --%@.</translation>
    </message>
    <message>
        <source>--%@ needs one value.</source>
        <comment>Command line: an option given twice or with an empty value</comment>
        <translation>L’option --%@ attend une seule valeur.</translation>
    </message>
    <message>
        <source>&apos;formats&apos; takes no files.</source>
        <comment>Command line: wrong usage</comment>
        <translation>La commande «&#xa0;formats&#xa0;» n’accepte aucun fichier.</translation>
    </message>
    <message>
        <source>There is no video to convert.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Aucune vidéo à convertir n’est indiquée.</translation>
    </message>
    <message>
        <source>&apos;convert&apos; needs either --output or --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>La commande «&#xa0;convert&#xa0;» attend soit --output, soit --folder.</translation>
    </message>
    <message>
        <source>Several videos can&apos;t go to one output file; use --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Plusieurs vidéos ne peuvent pas être enregistrées dans un seul fichier&#xa0;; utilisez --folder.</translation>
    </message>
    <message>
        <source>--to NAME is missing.</source>
        <comment>Command line: wrong usage</comment>
        <translation>L’option --to NOM est absente.</translation>
    </message>
    <message>
        <source>There is no command named &quot;%@&quot;.</source>
        <comment>Command line: wrong usage</comment>
        <translation>La commande «&#xa0;%@&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>%@; that much was kept.</source>
        <comment>After: The converting progress was finished at 12s</comment>
        <translation>%@&#xa0;; la partie déjà convertie a été conservée.</translation>
    </message>
    <message>
        <source>The destination&apos;s folder does not exist.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Le dossier de destination n’existe pas.</translation>
    </message>
    <message>
        <source>The destination&apos;s folder is a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Le dossier de destination est en fait un fichier.</translation>
    </message>
    <message>
        <source>The destination&apos;s folder may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Vous n’avez pas le droit d’écrire dans le dossier de destination.</translation>
    </message>
    <message>
        <source>The result can&apos;t replace a video that is to be converted.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Le résultat ne peut pas remplacer une vidéo à convertir.</translation>
    </message>
    <message>
        <source>The destination is a folder, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>La destination est un dossier et non un fichier.</translation>
    </message>
    <message>
        <source>The destination is a link that leads nowhere.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>La destination est un lien rompu.</translation>
    </message>
    <message>
        <source>The destination is a pipe or a device, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>La destination est un tube ou un périphérique et non un fichier.</translation>
    </message>
    <message>
        <source>The destination exists already.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>La destination existe déjà.</translation>
    </message>
    <message>
        <source>The destination exists already; --overwrite replaces it.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>La destination existe déjà&#xa0;; --overwrite la remplace.</translation>
    </message>
    <message>
        <source>The destination may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Vous n’avez pas le droit d’écrire à cette destination.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>This is a folder, not a video.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>C’est un dossier et non une vidéo.</translation>
    </message>
    <message>
        <source>The file may not be read: permission denied.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Lecture du fichier impossible&#xa0;: permission refusée.</translation>
    </message>
    <message>
        <source>This is a pipe or a device, not a file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>C’est un tube ou un périphérique et non un fichier.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The video is shorter than one second.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>La vidéo dure moins d’une seconde.</translation>
    </message>
    <message>
        <source>The tool %@ is missing or can&apos;t be run.</source>
        <comment>Path of a program</comment>
        <translation>L’outil %@ est introuvable ou ne peut pas être exécuté.</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>Heading of a group of outputs</comment>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>Heading of a group of outputs</comment>
        <translation>Formats</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>Heading of a group of outputs</comment>
        <translation>Qualité MP4</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <comment>The user stopped the program</comment>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>The output can&apos;t be written.</source>
        <comment>Standard output is a file on a full disk</comment>
        <translation>Impossible d’écrire la sortie.</translation>
    </message>
    <message>
        <source>%@: converted to %@ in %@</source>
        <comment>Video, file that was made of it, time that it took</comment>
        <translation>%@&#xa0;: conversion vers %@ terminée en %@</translation>
    </message>
    <message>
        <source>%d of %d videos converted</source>
        <comment>Sum after the conversion of several videos</comment>
        <translation>Vidéos converties&#xa0;: %d sur %d</translation>
    </message>
    <message>
        <source>The file can&apos;t be opened.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>Impossible d’ouvrir le fichier.</translation>
    </message>
    <message>
        <source>The file holds no JSON.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>Le fichier ne contient pas de JSON.</translation>
    </message>
    <message>
        <source>%d ch</source>
        <comment>Number of sound channels, abbreviated</comment>
        <translation>%d can.</translation>
    </message>
    <message>
        <source>Length</source>
        <comment>Property of a video</comment>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Container</source>
        <comment>Property of a video</comment>
        <translation>Conteneur</translation>
    </message>
    <message>
        <source>Stream</source>
        <comment>Property of a video</comment>
        <translation>Flux</translation>
    </message>
    <message>
        <source>none</source>
        <comment>A video has no cover picture</comment>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Cover</source>
        <comment>Property of a video</comment>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>%@ so far</source>
        <comment>Time that a conversion of unknown length has taken</comment>
        <translation>déjà %@</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>Time that a conversion still needs</comment>
        <translation>encore %@</translation>
    </message>
    <message>
        <source>There is no space left on the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>Il n’y a plus d’espace libre sur le disque de destination.</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <comment>Why a conversion failed</comment>
        <translation>Le quota de disque est atteint.</translation>
    </message>
    <message>
        <source>The destination&apos;s disk is read-only.</source>
        <comment>Why a conversion failed</comment>
        <translation>Le disque de destination est en lecture seule.</translation>
    </message>
    <message>
        <source>Permission was denied to read the video or to write the result.</source>
        <comment>Why a conversion failed</comment>
        <translation>Permission refusée pour lire la vidéo ou écrire le résultat.</translation>
    </message>
    <message>
        <source>The installed tool has no encoder %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>L’outil installé ne dispose pas de l’encodeur %@.</translation>
    </message>
    <message>
        <source>The installed tool can&apos;t write the format %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>L’outil installé ne peut pas écrire le format %@.</translation>
    </message>
    <message>
        <source>The destination&apos;s name is too long.</source>
        <comment>Why a conversion failed</comment>
        <translation>Le nom de la destination est trop long.</translation>
    </message>
    <message>
        <source>A disk reported an error.</source>
        <comment>Why a conversion failed</comment>
        <translation>Un disque a signalé une erreur.</translation>
    </message>
    <message>
        <source>There was not enough memory.</source>
        <comment>Why a conversion failed</comment>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>The tool was silent for too long and was stopped.</source>
        <comment>Why a conversion failed</comment>
        <translation>L’outil est resté muet trop longtemps et a été arrêté.</translation>
    </message>
    <message>
        <source>The video&apos;s data is damaged.</source>
        <comment>Why a conversion failed</comment>
        <translation>Les données de la vidéo sont endommagées.</translation>
    </message>
    <message>
        <source>The tool failed: %@</source>
        <comment>Why a conversion failed; the tool&apos;s own words follow</comment>
        <translation>L’outil a échoué&#xa0;: %@</translation>
    </message>
    <message>
        <source>The tool was killed before it was done.</source>
        <comment>Why a conversion failed</comment>
        <translation>L’outil a été tué avant d’avoir terminé.</translation>
    </message>
    <message>
        <source>Video Converter quit unexpectedly the last time.</source>
        <comment>crash question, title</comment>
        <translation>La dernière fois, Video Converter a quitté de façon inattendue.</translation>
    </message>
    <message>
        <source>May a report be sent to its makers? It says where the program stopped, its version and your system; nothing about your files is in it. “Always Send” also tells them when the program starts and how it ended.</source>
        <comment>crash question, text</comment>
        <translation>Voulez-vous envoyer un rapport aux développeurs&#xa0;? Il indique où le programme s’est arrêté, sa version et votre système&#xa0;; il ne contient rien sur vos fichiers. «&#xa0;Toujours envoyer&#xa0;» leur signale aussi quand le programme démarre et comment il s’est terminé.</translation>
    </message>
    <message>
        <source>Send</source>
        <comment>crash question, button</comment>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Always Send</source>
        <comment>crash question, button</comment>
        <translation>Toujours envoyer</translation>
    </message>
    <message>
        <source>Don&apos;t Send</source>
        <comment>crash question, button</comment>
        <translation>Ne pas envoyer</translation>
    </message>
    <message>
        <source>The converting progress was finished at %@</source>
        <comment>Error message format string when file has not been converted at full length</comment>
        <translation>La conversion s’est arrêtée à %@</translation>
    </message>
    <message>
        <source>Version %@</source>
        <comment>about box, with the version number</comment>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>About %@</source>
        <comment>about box, with the program&apos;s name</comment>
        <translation>À propos de %@</translation>
    </message>
    <message>
        <source>Visit Web Site</source>
        <comment>button of the about box</comment>
        <translation>Visiter le site web</translation>
    </message>
    <message>
        <source>Alert.No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Alert.Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>“%@” already exists. Do you want to replace it?</source>
        <comment>question of the save panel, with the name of a file</comment>
        <translation>Le fichier «&#xa0;%@&#xa0;» existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Convert.savePanelTitle</source>
        <comment>title for save panel</comment>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Convert.savePanelPrompt</source>
        <comment>prompt for save panel</comment>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Convert.savePanelNameFieldLabel</source>
        <comment>name label for save panel (&lt;= 15 symbols)</comment>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>%dd %dh %dm %ds</source>
        <comment>format string for days/hours/minutes/seconds</comment>
        <translation>%d&#xa0;j %d&#xa0;h %d&#xa0;min %d&#xa0;s</translation>
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
        <translation>Vidéo non prise en charge</translation>
    </message>
    <message>
        <source>Attention! Current converting process will be cancelled.
Are you sure you want to continue?</source>
        <comment>Cancel progress alert message text</comment>
        <translation>Attention&#xa0;! La conversion en cours sera annulée.
Voulez-vous vraiment continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Error processing %@</source>
        <comment>Error message on conversion failure</comment>
        <translation>Erreur lors du traitement de %@</translation>
    </message>
    <message>
        <source>Converting a video</source>
        <comment>why the machine stays awake</comment>
        <translation>Conversion d’une vidéo</translation>
    </message>
    <message>
        <source>%d%%</source>
        <comment>percentage converted</comment>
        <translation>%d&#xa0;%%</translation>
    </message>
    <message>
        <source>Convert.buttonTitle</source>
        <comment>convert button title</comment>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>You have the newest version of Video Converter, %@.</source>
        <comment>update check</comment>
        <translation>Vous disposez de la dernière version de Video Converter (%@).</translation>
    </message>
    <message>
        <source>Updates are not available in this build.</source>
        <comment>update check</comment>
        <translation>Les mises à jour ne sont pas disponibles pour cette version.</translation>
    </message>
    <message>
        <source>The list of updates could not be read. Please try again later.</source>
        <comment>update check</comment>
        <translation>Impossible de lire la liste des mises à jour. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>An update was announced, but not by the makers of Video Converter. It is not offered.</source>
        <comment>update check: wrong signature</comment>
        <translation>Une mise à jour a été annoncée, mais pas par les développeurs de Video Converter. Elle n’est pas proposée.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <comment>update dialog, title</comment>
        <translation>Mise à jour logicielle</translation>
    </message>
    <message>
        <source>Video Converter %1$@ is available. You have %2$@.</source>
        <comment>update dialog: new, own version</comment>
        <translation>Video Converter %1$@ est disponible. Vous avez la version %2$@.</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>update dialog, button</comment>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>update dialog, button</comment>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Open Web Site</source>
        <comment>update dialog, button</comment>
        <translation>Ouvrir le site web</translation>
    </message>
    <message>
        <source>Downloading version %@</source>
        <comment>update download</comment>
        <translation>Téléchargement de la version %@</translation>
    </message>
    <message>
        <source>The update is in your downloads folder as “%@”. Open it to install it.</source>
        <comment>update download</comment>
        <translation>La mise à jour se trouve dans votre dossier de téléchargements sous le nom «&#xa0;%@&#xa0;». Ouvrez-la pour l’installer.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <comment>update download, button</comment>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>The download was not signed by the makers of Video Converter and has been thrown away.</source>
        <comment>update download: wrong signature</comment>
        <translation>Le fichier téléchargé n’était pas signé par les développeurs de Video Converter et a été supprimé.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Please try again later.</source>
        <comment>update download</comment>
        <translation>Impossible de télécharger la mise à jour. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The result would replace another one of this run.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Le résultat remplacerait un autre résultat de cette exécution.</translation>
    </message>
    <message>
        <source>The file is not a video, or it is damaged or incomplete.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Le fichier n’est pas une vidéo, ou il est endommagé ou incomplet.</translation>
    </message>
    <message>
        <source>The file does not say how long it plays.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Le fichier n’indique pas sa durée.</translation>
    </message>
    <message>
        <source>The size of the file is unknown.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Impossible de déterminer la taille du fichier.</translation>
    </message>
    <message>
        <source>The file is still being written, or only part of it could be read.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Le fichier est encore en cours d’écriture ou n’a pu être lu qu’en partie.</translation>
    </message>
    <message>
        <source>Another program stopped the tool.</source>
        <comment>Why a conversion failed</comment>
        <translation>L’outil a été arrêté de l’extérieur.</translation>
    </message>
    <message>
        <source>The result is too large for the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>Le disque de destination n’accepte pas de fichier aussi volumineux.</translation>
    </message>
    <message>
        <source>The video or the destination&apos;s folder no longer exists.</source>
        <comment>Why a conversion failed</comment>
        <translation>La vidéo ou le dossier de destination a disparu.</translation>
    </message>
    <message>
        <source>The video contains nothing that this output can hold.</source>
        <comment>Why a conversion failed</comment>
        <translation>La vidéo ne contient rien que ce format de sortie puisse recevoir.</translation>
    </message>
    <message>
        <source>The encoder can&apos;t handle this video&apos;s picture or sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>L’encodeur n’accepte pas tels quels l’image ou le son de la vidéo.</translation>
    </message>
    <message>
        <source>The result can&apos;t go to standard output; name a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>Le résultat ne peut pas être envoyé sur la sortie standard ; indiquez un fichier.</translation>
    </message>
    <message>
        <source>The file&apos;s name can&apos;t be represented as text. Please rename it.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>Le nom du fichier ne peut pas être représenté sous forme de texte. Veuillez le renommer.</translation>
    </message>
    <message>
        <source>The result has no moving picture, although the video has one.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>Le résultat ne contient pas d’image animée, alors que la vidéo en a une.</translation>
    </message>
    <message>
        <source>The result has no sound, although the video has some.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>Le résultat n’a pas de son, alors que la vidéo en a.</translation>
    </message>
    <message>
        <source>The cover picture was left out, because this output can&apos;t show it.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>L’image de couverture a été omise, car cette sortie ne peut pas l’afficher.</translation>
    </message>
    <message>
        <source>The picture was made a little smaller, because this output needs even sizes.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>L’image a été légèrement réduite, car cette sortie exige des dimensions paires.</translation>
    </message>
    <message>
        <source>The sound was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>Le son a été réencodé, car cette sortie ne l’accepte pas tel quel.</translation>
    </message>
    <message>
        <source>The picture was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>L’image a été réencodée, car cette sortie ne l’accepte pas telle quelle.</translation>
    </message>
    <message>
        <source>The video is damaged in places, first at %@.</source>
        <comment>Remark on a whole result, with a time</comment>
        <translation>La vidéo est endommagée par endroits, d’abord à %@.</translation>
    </message>
    <message>
        <source>The video is damaged in places.</source>
        <comment>Remark on a whole result</comment>
        <translation>La vidéo est endommagée par endroits.</translation>
    </message>
    <message>
        <source>The older file was kept as “%@”.</source>
        <comment>Remark on a short result, with a file&apos;s name</comment>
        <translation>L’ancien fichier a été conservé sous le nom « %@ ».</translation>
    </message>
    <message>
        <source>Settings…</source>
        <comment>menu command</comment>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>This build contacts nobody.</source>
        <comment>settings</comment>
        <translation>Cette version ne contacte aucun serveur.</translation>
    </message>
    <message>
        <source>As on the desktop</source>
        <comment>settings, choice of the language</comment>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Settings</source>
        <comment>title of the settings&apos; window</comment>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Send anonymous usage events</source>
        <comment>settings</comment>
        <translation>Envoyer des données d’utilisation anonymes</translation>
    </message>
    <message>
        <source>Look for updates once a day</source>
        <comment>settings</comment>
        <translation>Rechercher les mises à jour une fois par jour</translation>
    </message>
    <message>
        <source>Language:</source>
        <comment>settings</comment>
        <translation>Langue&#xa0;:</translation>
    </message>
    <message>
        <source>From the next start on.</source>
        <comment>settings, language</comment>
        <translation>Prend effet au prochain démarrage du programme.</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; did you mean &quot;%@&quot;?</source>
        <comment>Command line: wrong value of --to, and the nearest right ones</comment>
        <translation>Le format de sortie «&#xa0;%@&#xa0;» n’existe pas. Vouliez-vous dire «&#xa0;%@&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>&apos;plan&apos; takes a video and an output file, videos and --folder, or --info alone.</source>
        <comment>Command line: wrong usage</comment>
        <translation>La commande «&#xa0;plan&#xa0;» attend une vidéo et un fichier de sortie, des vidéos et --folder, ou --info seul.</translation>
    </message>
    <message>
        <source>--overwrite and --skip-existing exclude each other.</source>
        <comment>Command line: wrong usage</comment>
        <translation>--overwrite et --skip-existing s’excluent mutuellement.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; is no name for &quot;%@&quot;, which makes .%@ files.</source>
        <comment>Command line: name of a result, name of an output, its extension</comment>
        <translation>Le nom «&#xa0;%@&#xa0;» ne convient pas au format de sortie «&#xa0;%@&#xa0;», qui produit des fichiers .%@.</translation>
    </message>
    <message>
        <source>&apos;probe&apos; needs a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>La commande «&#xa0;probe&#xa0;» attend un fichier.</translation>
    </message>
    <message>
        <source>--jobs takes a number, --shard two such as 2/8.</source>
        <comment>Command line: wrong usage</comment>
        <translation>L’option --jobs attend un nombre, --shard en attend deux, par exemple 2/8.</translation>
    </message>
    <message>
        <source>Lists the outputs that --to takes: devices, formats and MP4 qualities.</source>
        <comment>Help: command formats</comment>
        <translation>Donne la liste des formats de sortie pour --to&#xa0;: appareils, formats et qualités MP4.</translation>
    </message>
    <message>
        <source>Describes videos. With --json: everything that the tool reports (info), the length (duration, seconds) and the size of the cover picture or null (cover).</source>
        <comment>Help: command probe</comment>
        <translation>Décrit des vidéos. Avec --json&#xa0;: tout ce qu’en dit l’outil (info), la durée (duration, seconds) et la taille de l’image de couverture ou null (cover).</translation>
    </message>
    <message>
        <source>Prints the tool&apos;s command line, quoted for a shell, without running it. --to all prints one for each output.</source>
        <comment>Help: command plan</comment>
        <translation>Affiche la ligne de commande de l’outil, protégée pour un shell, sans l’exécuter. Avec --to all, en affiche une par format de sortie.</translation>
    </message>
    <message>
        <source>Converts videos. Ctrl-C cancels and leaves no unfinished file. A name that begins with a dash goes after --.</source>
        <comment>Help: command convert</comment>
        <translation>Convertit des vidéos. Ctrl-C arrête sans laisser de fichier inachevé. Un nom qui commence par un tiret se place après --.</translation>
    </message>
    <message>
        <source>Usage: %@</source>
        <comment>Help of the command</comment>
        <translation>Utilisation&#xa0;: %@</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a conversion failed or its result is not whole, 2 wrong usage, 3 video refused, 4 destination refused, 5 a tool is missing, 128 + N stopped by signal N (130 after Ctrl-C). With several videos, the first one that was not converted decides.</source>
        <comment>Help of the command</comment>
        <translation>Code de retour&#xa0;: 0 terminé, 1 échec d’une conversion ou résultat incomplet, 2 mauvaise utilisation, 3 vidéo refusée, 4 destination refusée, 5 outil absent, 128 + N arrêt par le signal N (130 après Ctrl-C). Pour plusieurs vidéos, c’est celui de la première qui n’a pas été convertie.</translation>
    </message>
    <message>
        <source>the output: one of those that &apos;formats&apos; lists, or an extension</source>
        <comment>Help: option --to</comment>
        <translation>le format de sortie&#xa0;: l’un de ceux que liste «&#xa0;formats&#xa0;», ou une extension</translation>
    </message>
    <message>
        <source>the file to write</source>
        <comment>Help: option --output</comment>
        <translation>le fichier à écrire</translation>
    </message>
    <message>
        <source>the folder to write to; the files get the videos&apos; names</source>
        <comment>Help: option --folder</comment>
        <translation>le dossier où écrire&#xa0;; les fichiers prennent le nom des vidéos</translation>
    </message>
    <message>
        <source>takes all videos and music in a folder and below, and keeps its tree</source>
        <comment>Help: option --recursive</comment>
        <translation>prend toutes les vidéos et la musique d’un dossier et de ses sous-dossiers, en conservant l’arborescence</translation>
    </message>
    <message>
        <source>takes the names in a file, one a line; - is standard input</source>
        <comment>Help: option --files-from</comment>
        <translation>lit les noms dans un fichier, un par ligne&#xa0;; - désigne l’entrée standard</translation>
    </message>
    <message>
        <source>names in that file end with a null character, as after find -print0</source>
        <comment>Help: option --null</comment>
        <translation>les noms de ce fichier se terminent par un caractère nul, comme avec find -print0</translation>
    </message>
    <message>
        <source>converts N videos side by side; 0 stands for as many as suit the cores</source>
        <comment>Help: option --jobs</comment>
        <translation>convertit N vidéos en parallèle&#xa0;; 0 adapte ce nombre aux cœurs du processeur</translation>
    </message>
    <message>
        <source>replaces files that exist; a video itself is never replaced</source>
        <comment>Help: option --overwrite</comment>
        <translation>remplace les fichiers existants, mais jamais une vidéo d’origine</translation>
    </message>
    <message>
        <source>leaves whole results that are newer than their videos alone, and makes cut ones again</source>
        <comment>Help: option --skip-existing</comment>
        <translation>conserve les résultats complets plus récents que leur vidéo et refait ceux qui sont tronqués</translation>
    </message>
    <message>
        <source>takes the K-th of N parts of the videos; the parts depend on their names alone</source>
        <comment>Help: option --shard</comment>
        <translation>prend la K-ième des N parts des vidéos&#xa0;; la répartition ne dépend que de leurs noms</translation>
    </message>
    <message>
        <source>takes a description saved by &apos;probe --json&apos; (- for standard input) and prints only the arguments that depend on it</source>
        <comment>Help: option --info</comment>
        <translation>prend une description enregistrée par «&#xa0;probe --json&#xa0;» (- pour l’entrée standard) et n’affiche que les arguments qui en dépendent</translation>
    </message>
    <message>
        <source>prints failures only</source>
        <comment>Help: option --quiet</comment>
        <translation>n’affiche que les échecs</translation>
    </message>
    <message>
        <source>prints JSON; &apos;convert&apos; prints one object a line</source>
        <comment>Help: option --json</comment>
        <translation>affiche du JSON&#xa0;; «&#xa0;convert&#xa0;» affiche un objet par ligne</translation>
    </message>
    <message>
        <source>prints diagnostics and the tool&apos;s full output to standard error</source>
        <comment>Help: option --verbose</comment>
        <translation>affiche les diagnostics et tous les messages de l’outil sur la sortie d’erreur</translation>
    </message>
    <message>
        <source>prints this help</source>
        <comment>Help: option --help</comment>
        <translation>affiche cette aide</translation>
    </message>
    <message>
        <source>prints the version</source>
        <comment>Help: option --version</comment>
        <translation>affiche la version</translation>
    </message>
    <message>
        <source>%d of %d</source>
        <comment>Number of videos that are done, and of all</comment>
        <translation>%d sur %d</translation>
    </message>
    <message>
        <source>%@: %@ is there already</source>
        <comment>Video, file that was made of it in an earlier run</comment>
        <translation>%@&#xa0;: %@ existe déjà</translation>
    </message>
    <message>
        <source>The list of videos can&apos;t be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>Impossible de lire la liste des vidéos.</translation>
    </message>
    <message>
        <source>There is no such folder, or it may not be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>Ce dossier n’existe pas ou ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The destination&apos;s name can&apos;t be represented as text. Please choose another one.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>Le nom de la destination ne peut pas être représenté sous forme de texte. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>The tool can&apos;t examine videos: %@</source>
        <comment>Why no video can be converted; the tool&apos;s own words follow</comment>
        <translation>L’outil ne peut pas analyser de vidéos&#xa0;: %@</translation>
    </message>
    <message>
        <source>The tool needed more memory, threads or files than any video should.</source>
        <comment>Why a conversion failed</comment>
        <translation>L’outil a demandé plus de mémoire, de threads ou de fichiers qu’une vidéo ne devrait en exiger.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the cover picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>Ce format de sortie ne peut pas contenir l’image de couverture.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold a picture of odd width or height.</source>
        <comment>Why a conversion failed</comment>
        <translation>Ce format de sortie ne peut pas contenir une image de largeur ou de hauteur impaire.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>Ce format de sortie ne peut pas contenir le son de la vidéo.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>Ce format de sortie ne peut pas contenir l’image de la vidéo.</translation>
    </message>
    <message>
        <source>Drop to convert</source>
        <comment>over the window, while a file is dragged</comment>
        <translation>Déposez pour convertir</translation>
    </message>
    <message>
        <source>One video at a time: wait for the end of this one</source>
        <comment>over the window, while a file is dragged that it can&apos;t take now</comment>
        <translation>Une seule vidéo à la fois&#xa0;: attendez la fin de celle-ci</translation>
    </message>
    <message>
        <source>Only files can be dropped here</source>
        <comment>over the window, while something else than a file is dragged</comment>
        <translation>Seuls des fichiers peuvent être déposés ici</translation>
    </message>
    <message>
        <source>Next: “%@”</source>
        <comment>name of a video that came while another one is converted</comment>
        <translation>À suivre&#xa0;: «&#xa0;%@&#xa0;»</translation>
    </message>
    <message>
        <source>Examining “%@”</source>
        <comment>name of a video</comment>
        <translation>Analyse de «&#xa0;%@&#xa0;»</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>time left of a conversion, such as 1m 30s</comment>
        <translation>encore %@</translation>
    </message>
    <message>
        <source>%@ – %@</source>
        <comment>window title while converting: percentage and time left, program name</comment>
        <translation>%@ – %@</translation>
    </message>
    <message>
        <source>The video has no sound</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>La vidéo n’a pas de son</translation>
    </message>
    <message>
        <source>The video has no picture</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>La vidéo n’a pas d’image</translation>
    </message>
    <message>
        <source>Drag the result from here into a folder or a mail</source>
        <comment>tool tip of the picture</comment>
        <translation>Faites glisser le résultat d’ici vers un dossier ou un e-mail</translation>
    </message>
    <message>
        <source>Open “%@” again</source>
        <comment>with the name of the last video</comment>
        <translation>Rouvrir «&#xa0;%@&#xa0;»</translation>
    </message>
    <message>
        <source>One video is converted at a time here. Left out: %d</source>
        <comment>several videos were dropped, with the number of the others</comment>
        <translation>Une vidéo à la fois. Laissées de côté&#xa0;: %d</translation>
    </message>
    <message>
        <source>Copy command</source>
        <comment>copies a command line that converts several videos</comment>
        <translation>Copier la commande</translation>
    </message>
    <message>
        <source>Second try, in another way: the first one could not work.</source>
        <comment>while converting</comment>
        <translation>Deuxième essai, par une autre voie&#xa0;: le premier a échoué.</translation>
    </message>
    <message>
        <source>Try another format</source>
        <comment>after a conversion that failed</comment>
        <translation>Essayer un autre format</translation>
    </message>
    <message>
        <source>Show the log</source>
        <comment>what the tool said in a conversion that failed</comment>
        <translation>Afficher le journal</translation>
    </message>
    <message>
        <source>Copied</source>
        <comment>a command line is on the clipboard now</comment>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Copies the sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Copie le son, en quelques secondes</translation>
    </message>
    <message>
        <source>Encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Réencode le son</translation>
    </message>
    <message>
        <source>Copies the picture, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Copie l’image, en quelques secondes</translation>
    </message>
    <message>
        <source>Copies picture and sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Copie l’image et le son, en quelques secondes</translation>
    </message>
    <message>
        <source>Copies the picture, encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Copie l’image, réencode le son</translation>
    </message>
    <message>
        <source>Encodes the picture anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Réencode l’image</translation>
    </message>
    <message>
        <source>Encodes the picture anew, copies the sound</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Réencode l’image, copie le son</translation>
    </message>
    <message>
        <source>Encodes picture and sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>Réencode l’image et le son</translation>
    </message>
    <message>
        <source>Copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>Copie du son</translation>
    </message>
    <message>
        <source>Encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>Encodage du son</translation>
    </message>
    <message>
        <source>Copying the picture</source>
        <comment>What a running conversion does</comment>
        <translation>Copie de l’image</translation>
    </message>
    <message>
        <source>Copying picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>Copie de l’image et du son</translation>
    </message>
    <message>
        <source>Copying the picture, encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>Copie de l’image, encodage du son</translation>
    </message>
    <message>
        <source>Encoding the picture</source>
        <comment>What a running conversion does</comment>
        <translation>Encodage de l’image</translation>
    </message>
    <message>
        <source>Encoding the picture, copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>Encodage de l’image, copie du son</translation>
    </message>
    <message>
        <source>Encoding picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>Encodage de l’image et du son</translation>
    </message>
    <message>
        <source>Scales to %d × %d</source>
        <comment>What an entry of the format menu does: width, height</comment>
        <translation>Redimensionne en %d&#xa0;×&#xa0;%d</translation>
    </message>
    <message>
        <source>%d × %d</source>
        <comment>width and height of a picture</comment>
        <translation>%d&#xa0;×&#xa0;%d</translation>
    </message>
    <message>
        <source>The result will take about %@.</source>
        <comment>in the save panel, with a size such as 12.3 MB</comment>
        <translation>Le résultat occupera environ %@.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <comment>update dialog, button</comment>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Get it where you got Video Converter from.</source>
        <comment>update dialog, when neither a download nor a web site is known</comment>
        <translation>Vous pouvez l’obtenir là où vous vous êtes procuré Video Converter.</translation>
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
        <translation>Image de la vidéo</translation>
    </message>
    <message>
        <source>Examining the video</source>
        <translation>Analyse de la vidéo</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>Zone de dépôt</translation>
    </message>
    <message>
        <source>Drag a video here</source>
        <translation>Faites glisser une vidéo ici</translation>
    </message>
    <message>
        <source>or choose it from a folder</source>
        <translation>ou choisissez-la dans un dossier</translation>
    </message>
    <message>
        <source>Choose a video to convert</source>
        <translation>Choisir une vidéo à convertir</translation>
    </message>
    <message>
        <source>Choose what the video becomes</source>
        <translation>Choisir le format de la vidéo convertie</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Conversion…</translation>
    </message>
    <message>
        <source>Progress of the conversion</source>
        <translation>Progression de la conversion</translation>
    </message>
    <message>
        <source>Cancel the conversion</source>
        <translation>Annuler la conversion</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Conversion complete</source>
        <translation>Conversion terminée</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Show the converted file in its folder</source>
        <translation>Afficher le fichier converti dans son dossier</translation>
    </message>
    <message>
        <source>Convert Another</source>
        <translation>Convertir une autre vidéo</translation>
    </message>
    <message>
        <source>Start over with another video</source>
        <translation>Recommencer avec une autre vidéo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Convert &amp;To</source>
        <translation>Convertir &amp;en</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>heading in the format menu</comment>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>heading in the format menu</comment>
        <translation>Formats</translation>
    </message>
    <message>
        <source>Audio (MP3)</source>
        <comment>item of the format menu</comment>
        <translation>Audio (MP3)</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>heading in the format menu</comment>
        <translation>Qualité MP4</translation>
    </message>
    <message>
        <source>MP4 Low Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4 basse qualité</translation>
    </message>
    <message>
        <source>MP4 Medium Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4 qualité moyenne</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Cancel Conversion</source>
        <translation>&amp;Annuler la conversion</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>Afficher dans le &amp;dossier</translation>
    </message>
    <message>
        <source>Convert &amp;Another</source>
        <translation>Convertir une a&amp;utre vidéo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Paste Video</source>
        <translation>&amp;Coller la vidéo</translation>
    </message>
    <message>
        <source>&amp;About Video Converter</source>
        <translation>À &amp;propos de Video Converter</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open the result in its player</source>
        <translation>Ouvrir le résultat dans son lecteur</translation>
    </message>
    <message>
        <source>Convert as &amp;Last Time</source>
        <translation>Convertir comme la dernière &amp;fois</translation>
    </message>
</context>
</TS>
