<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>Localizable</name>
    <message>
        <source>Conversion Log</source>
        <comment>title of the log&apos;s window</comment>
        <translation>سجل التحويل</translation>
    </message>
    <message>
        <source>Show Conversion Log</source>
        <comment>menu command, opens a window</comment>
        <translation>إظهار سجل التحويل</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <comment>menu command</comment>
        <translation>التحقق من وجود تحديثات…</translation>
    </message>
    <message>
        <source>Video to open.</source>
        <comment>help on the command line</comment>
        <translation>مقطع الفيديو المراد فتحه.</translation>
    </message>
    <message>
        <source>Try &apos;video-converter-cli --help&apos;.</source>
        <comment>Command line: follows a message about wrong usage</comment>
        <translation>للمساعدة استخدم «video-converter-cli --help».</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; the command &apos;formats&apos; lists them.</source>
        <comment>Command line: wrong value of --to</comment>
        <translation>لا توجد صيغة إخراج باسم «%@». يعرض الأمر «formats» قائمة الصيغ.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; does not take --%@.</source>
        <comment>Command line: a command and an option that does not belong to it</comment>
        <translation>لا يقبل الأمر «%@» الخيار ‎--%@.</translation>
    </message>
    <message>
        <source>--%@ needs one value.</source>
        <comment>Command line: an option given twice or with an empty value</comment>
        <translation>يتطلب الخيار ‎--%@ قيمة واحدة.</translation>
    </message>
    <message>
        <source>&apos;formats&apos; takes no files.</source>
        <comment>Command line: wrong usage</comment>
        <translation>لا يقبل الأمر «formats» أي ملفات.</translation>
    </message>
    <message>
        <source>There is no video to convert.</source>
        <comment>Command line: wrong usage</comment>
        <translation>لم يُحدَّد أي مقطع فيديو للتحويل.</translation>
    </message>
    <message>
        <source>&apos;convert&apos; needs either --output or --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>يتطلب الأمر «convert» إما ‎--output أو ‎--folder.</translation>
    </message>
    <message>
        <source>Several videos can&apos;t go to one output file; use --folder.</source>
        <comment>Command line: wrong usage</comment>
        <translation>لا يمكن حفظ عدة مقاطع فيديو في ملف واحد؛ استخدم ‎--folder.</translation>
    </message>
    <message>
        <source>--to NAME is missing.</source>
        <comment>Command line: wrong usage</comment>
        <translation>الخيار ‎--to NAME مفقود.</translation>
    </message>
    <message>
        <source>There is no command named &quot;%@&quot;.</source>
        <comment>Command line: wrong usage</comment>
        <translation>لا يوجد أمر باسم «%@».</translation>
    </message>
    <message>
        <source>%@; that much was kept.</source>
        <comment>After: The converting progress was finished at 12s</comment>
        <translation>%@؛ وقد احتُفظ بالجزء المحوَّل.</translation>
    </message>
    <message>
        <source>The destination&apos;s folder does not exist.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>مجلد الوجهة غير موجود.</translation>
    </message>
    <message>
        <source>The destination&apos;s folder is a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>مجلد الوجهة ملف وليس مجلدًا.</translation>
    </message>
    <message>
        <source>The destination&apos;s folder may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>ليس لديك إذن بالكتابة في مجلد الوجهة.</translation>
    </message>
    <message>
        <source>The result can&apos;t replace a video that is to be converted.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>لا يمكن أن تحل النتيجة محل مقطع فيديو مطلوب تحويله.</translation>
    </message>
    <message>
        <source>The destination is a folder, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>الوجهة مجلد وليست ملفًا.</translation>
    </message>
    <message>
        <source>The destination is a link that leads nowhere.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>الوجهة رابط معطوب.</translation>
    </message>
    <message>
        <source>The destination is a pipe or a device, not a file.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>الوجهة أنبوب أو جهاز وليست ملفًا.</translation>
    </message>
    <message>
        <source>The destination exists already.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>الوجهة موجودة بالفعل.</translation>
    </message>
    <message>
        <source>The destination exists already; --overwrite replaces it.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>الوجهة موجودة بالفعل؛ لاستبدالها أضف ‎--overwrite.</translation>
    </message>
    <message>
        <source>The destination may not be written to.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>ليس لديك إذن بالكتابة في الوجهة.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>الملف غير موجود.</translation>
    </message>
    <message>
        <source>This is a folder, not a video.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>هذا مجلد وليس مقطع فيديو.</translation>
    </message>
    <message>
        <source>The file may not be read: permission denied.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>تتعذّر قراءة الملف: الإذن مرفوض.</translation>
    </message>
    <message>
        <source>This is a pipe or a device, not a file.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>هذا أنبوب أو جهاز وليس ملفًا.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>الملف فارغ.</translation>
    </message>
    <message>
        <source>The video is shorter than one second.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>مدة الفيديو أقل من ثانية واحدة.</translation>
    </message>
    <message>
        <source>The tool %@ is missing or can&apos;t be run.</source>
        <comment>Path of a program</comment>
        <translation>الأداة %@ مفقودة أو يتعذّر تشغيلها.</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>Heading of a group of outputs</comment>
        <translation>الأجهزة</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>Heading of a group of outputs</comment>
        <translation>الصيغ</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>Heading of a group of outputs</comment>
        <translation>جودة MP4</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <comment>The user stopped the program</comment>
        <translation>تم الإلغاء.</translation>
    </message>
    <message>
        <source>The output can&apos;t be written.</source>
        <comment>Standard output is a file on a full disk</comment>
        <translation>تعذّرت كتابة المخرجات.</translation>
    </message>
    <message>
        <source>%@: converted to %@ in %@</source>
        <comment>Video, file that was made of it, time that it took</comment>
        <translation>%@: تم التحويل إلى %@ خلال %@</translation>
    </message>
    <message>
        <source>%d of %d videos converted</source>
        <comment>Sum after the conversion of several videos</comment>
        <translation>مقاطع الفيديو المحوَّلة: %d من %d</translation>
    </message>
    <message>
        <source>The file can&apos;t be opened.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>تعذّر فتح الملف.</translation>
    </message>
    <message>
        <source>The file holds no JSON.</source>
        <comment>Why a saved description of a video can&apos;t be used</comment>
        <translation>لا يحتوي الملف على بيانات JSON.</translation>
    </message>
    <message>
        <source>%d ch</source>
        <comment>Number of sound channels, abbreviated</comment>
        <translation>القنوات: %d</translation>
    </message>
    <message>
        <source>Length</source>
        <comment>Property of a video</comment>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Container</source>
        <comment>Property of a video</comment>
        <translation>الحاوية</translation>
    </message>
    <message>
        <source>Stream</source>
        <comment>Property of a video</comment>
        <translation>المسار</translation>
    </message>
    <message>
        <source>none</source>
        <comment>A video has no cover picture</comment>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>Cover</source>
        <comment>Property of a video</comment>
        <translation>الغلاف</translation>
    </message>
    <message>
        <source>%@ so far</source>
        <comment>Time that a conversion of unknown length has taken</comment>
        <translation>مضى %@</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>Time that a conversion still needs</comment>
        <translation>بقي %@</translation>
    </message>
    <message>
        <source>There is no space left on the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>لم تعد هناك مساحة خالية على قرص الوجهة.</translation>
    </message>
    <message>
        <source>The disk quota is used up.</source>
        <comment>Why a conversion failed</comment>
        <translation>استُنفدت حصة القرص.</translation>
    </message>
    <message>
        <source>The destination&apos;s disk is read-only.</source>
        <comment>Why a conversion failed</comment>
        <translation>قرص الوجهة للقراءة فقط.</translation>
    </message>
    <message>
        <source>Permission was denied to read the video or to write the result.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا يوجد إذن بقراءة الفيديو أو بكتابة النتيجة.</translation>
    </message>
    <message>
        <source>The installed tool has no encoder %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا تتضمن الأداة المثبتة المُرمِّز %@.</translation>
    </message>
    <message>
        <source>The installed tool can&apos;t write the format %@.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا تستطيع الأداة المثبتة كتابة الصيغة %@.</translation>
    </message>
    <message>
        <source>The destination&apos;s name is too long.</source>
        <comment>Why a conversion failed</comment>
        <translation>اسم الوجهة طويل جدًا.</translation>
    </message>
    <message>
        <source>A disk reported an error.</source>
        <comment>Why a conversion failed</comment>
        <translation>أبلغ أحد الأقراص عن خطأ.</translation>
    </message>
    <message>
        <source>There was not enough memory.</source>
        <comment>Why a conversion failed</comment>
        <translation>الذاكرة غير كافية.</translation>
    </message>
    <message>
        <source>The tool was silent for too long and was stopped.</source>
        <comment>Why a conversion failed</comment>
        <translation>لم تستجب الأداة لفترة طويلة فأُوقفت.</translation>
    </message>
    <message>
        <source>The video&apos;s data is damaged.</source>
        <comment>Why a conversion failed</comment>
        <translation>بيانات الفيديو تالفة.</translation>
    </message>
    <message>
        <source>The tool failed: %@</source>
        <comment>Why a conversion failed; the tool&apos;s own words follow</comment>
        <translation>فشلت الأداة: %@</translation>
    </message>
    <message>
        <source>The tool was killed before it was done.</source>
        <comment>Why a conversion failed</comment>
        <translation>أُنهيت الأداة قسرًا قبل أن تكمل عملها.</translation>
    </message>
    <message>
        <source>Video Converter quit unexpectedly the last time.</source>
        <comment>crash question, title</comment>
        <translation>أُغلق Video Converter على نحو غير متوقع في المرة السابقة.</translation>
    </message>
    <message>
        <source>May a report be sent to its makers? It says where the program stopped, its version and your system; nothing about your files is in it. “Always Send” also tells them when the program starts and how it ended.</source>
        <comment>crash question, text</comment>
        <translation>هل تريد إرسال تقرير إلى المطوّرين؟ يوضّح التقرير موضع توقّف البرنامج وإصداره ومعلومات عن نظامك، ولا يتضمن أي شيء عن ملفاتك. كما يُعلمهم خيار «الإرسال دائمًا» بوقت بدء تشغيل البرنامج وكيفية انتهائه.</translation>
    </message>
    <message>
        <source>Send</source>
        <comment>crash question, button</comment>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Always Send</source>
        <comment>crash question, button</comment>
        <translation>الإرسال دائمًا</translation>
    </message>
    <message>
        <source>Don&apos;t Send</source>
        <comment>crash question, button</comment>
        <translation>عدم الإرسال</translation>
    </message>
    <message>
        <source>The converting progress was finished at %@</source>
        <comment>Error message format string when file has not been converted at full length</comment>
        <translation>توقّف التحويل عند %@</translation>
    </message>
    <message>
        <source>Version %@</source>
        <comment>about box, with the version number</comment>
        <translation>الإصدار %@</translation>
    </message>
    <message>
        <source>About %@</source>
        <comment>about box, with the program&apos;s name</comment>
        <translation>حول %@</translation>
    </message>
    <message>
        <source>Visit Web Site</source>
        <comment>button of the about box</comment>
        <translation>زيارة الموقع</translation>
    </message>
    <message>
        <source>Alert.No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Alert.Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>“%@” already exists. Do you want to replace it?</source>
        <comment>question of the save panel, with the name of a file</comment>
        <translation>الملف «⁨%@⁩» موجود بالفعل. هل تريد استبداله؟</translation>
    </message>
    <message>
        <source>Convert.savePanelTitle</source>
        <comment>title for save panel</comment>
        <translation>تحويل</translation>
    </message>
    <message>
        <source>Convert.savePanelPrompt</source>
        <comment>prompt for save panel</comment>
        <translation>تحويل</translation>
    </message>
    <message>
        <source>Convert.savePanelNameFieldLabel</source>
        <comment>name label for save panel (&lt;= 15 symbols)</comment>
        <translation>اسم الملف:</translation>
    </message>
    <message>
        <source>%dd %dh %dm %ds</source>
        <comment>format string for days/hours/minutes/seconds</comment>
        <translation>%d&#xa0;ي %d&#xa0;س %d&#xa0;د %d&#xa0;ث</translation>
    </message>
    <message>
        <source>%dh %dm %ds</source>
        <comment>format string for hours/minutes/seconds</comment>
        <translation>%d&#xa0;س %d&#xa0;د %d&#xa0;ث</translation>
    </message>
    <message>
        <source>%dm %ds</source>
        <comment>format string for minutes/seconds</comment>
        <translation>%d&#xa0;د %d&#xa0;ث</translation>
    </message>
    <message>
        <source>%ds</source>
        <comment>format string for seconds</comment>
        <translation>%d&#xa0;ث</translation>
    </message>
    <message>
        <source>Video not supported</source>
        <comment>Error message &apos;Video not supported&apos;</comment>
        <translation>الفيديو غير مدعوم</translation>
    </message>
    <message>
        <source>Attention! Current converting process will be cancelled.
Are you sure you want to continue?</source>
        <comment>Cancel progress alert message text</comment>
        <translation>تنبيه! سيُلغى التحويل الجاري.
هل تريد المتابعة حقًا؟</translation>
    </message>
    <message>
        <source>Error processing %@</source>
        <comment>Error message on conversion failure</comment>
        <translation>حدث خطأ أثناء معالجة ⁨%@⁩</translation>
    </message>
    <message>
        <source>Converting a video</source>
        <comment>why the machine stays awake</comment>
        <translation>جارٍ تحويل مقطع فيديو</translation>
    </message>
    <message>
        <source>%d%%</source>
        <comment>percentage converted</comment>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Convert.buttonTitle</source>
        <comment>convert button title</comment>
        <translation>تحويل</translation>
    </message>
    <message>
        <source>You have the newest version of Video Converter, %@.</source>
        <comment>update check</comment>
        <translation>لديك أحدث إصدار من Video Converter، وهو %@.</translation>
    </message>
    <message>
        <source>Updates are not available in this build.</source>
        <comment>update check</comment>
        <translation>التحديثات غير متاحة في هذه النسخة.</translation>
    </message>
    <message>
        <source>The list of updates could not be read. Please try again later.</source>
        <comment>update check</comment>
        <translation>تعذّرت قراءة قائمة التحديثات. يُرجى المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>An update was announced, but not by the makers of Video Converter. It is not offered.</source>
        <comment>update check: wrong signature</comment>
        <translation>أُعلن عن تحديث، لكنه ليس من مطوّري Video Converter، ولذلك لن يُعرض.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <comment>update dialog, title</comment>
        <translation>تحديث البرنامج</translation>
    </message>
    <message>
        <source>Video Converter %1$@ is available. You have %2$@.</source>
        <comment>update dialog: new, own version</comment>
        <translation>يتوفر Video Converter %1$@. لديك الإصدار %2$@.</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>update dialog, button</comment>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>update dialog, button</comment>
        <translation>تنزيل</translation>
    </message>
    <message>
        <source>Open Web Site</source>
        <comment>update dialog, button</comment>
        <translation>فتح الموقع</translation>
    </message>
    <message>
        <source>Downloading version %@</source>
        <comment>update download</comment>
        <translation>جارٍ تنزيل الإصدار %@</translation>
    </message>
    <message>
        <source>The update is in your downloads folder as “%@”. Open it to install it.</source>
        <comment>update download</comment>
        <translation>حُفظ التحديث في مجلد التنزيلات باسم «⁨%@⁩». افتحه لتثبيته.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <comment>update download, button</comment>
        <translation>فتح المجلد</translation>
    </message>
    <message>
        <source>The download was not signed by the makers of Video Converter and has been thrown away.</source>
        <comment>update download: wrong signature</comment>
        <translation>الملف الذي نُزّل غير موقَّع من مطوّري Video Converter، ولذلك حُذف.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Please try again later.</source>
        <comment>update download</comment>
        <translation>تعذّر تنزيل التحديث. يُرجى المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The result would replace another one of this run.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>ستحل النتيجة محل نتيجة أخرى من هذا التشغيل.</translation>
    </message>
    <message>
        <source>The file is not a video, or it is damaged or incomplete.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>الملف ليس مقطع فيديو، أو أنه تالف أو غير مكتمل.</translation>
    </message>
    <message>
        <source>The file does not say how long it plays.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>لا يحدد الملف مدته.</translation>
    </message>
    <message>
        <source>The size of the file is unknown.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>تعذّر تحديد حجم الملف.</translation>
    </message>
    <message>
        <source>The file is still being written, or only part of it could be read.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>ما زالت كتابة الملف جارية، أو لم تمكن قراءة سوى جزء منه.</translation>
    </message>
    <message>
        <source>Another program stopped the tool.</source>
        <comment>Why a conversion failed</comment>
        <translation>أُوقفت الأداة من الخارج.</translation>
    </message>
    <message>
        <source>The result is too large for the destination&apos;s disk.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا يدعم قرص الوجهة ملفًا بهذا الحجم.</translation>
    </message>
    <message>
        <source>The video or the destination&apos;s folder no longer exists.</source>
        <comment>Why a conversion failed</comment>
        <translation>لم يعد الفيديو أو مجلد الوجهة موجودًا.</translation>
    </message>
    <message>
        <source>The video contains nothing that this output can hold.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا يحتوي الفيديو على أي شيء تقبله صيغة الإخراج هذه.</translation>
    </message>
    <message>
        <source>The encoder can&apos;t handle this video&apos;s picture or sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا يقبل المُرمِّز صورة الفيديو أو صوته كما هما.</translation>
    </message>
    <message>
        <source>The result can&apos;t go to standard output; name a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>لا يمكن إرسال الناتج إلى الخرج القياسي؛ حدِّد ملفًا.</translation>
    </message>
    <message>
        <source>The file&apos;s name can&apos;t be represented as text. Please rename it.</source>
        <comment>Why a video can&apos;t be converted</comment>
        <translation>لا يمكن تمثيل اسم الملف كنص. يُرجى إعادة تسميته.</translation>
    </message>
    <message>
        <source>The result has no moving picture, although the video has one.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>لا يحتوي الناتج على صورة متحركة مع أن الفيديو يحتوي عليها.</translation>
    </message>
    <message>
        <source>The result has no sound, although the video has some.</source>
        <comment>What is wrong with a conversion&apos;s result</comment>
        <translation>لا يحتوي الناتج على صوت مع أن الفيديو يحتوي عليه.</translation>
    </message>
    <message>
        <source>The cover picture was left out, because this output can&apos;t show it.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>حُذفت صورة الغلاف لأن هذا الخرج لا يستطيع عرضها.</translation>
    </message>
    <message>
        <source>The picture was made a little smaller, because this output needs even sizes.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>صُغِّرت الصورة قليلًا لأن هذا الخرج يتطلب أبعادًا زوجية.</translation>
    </message>
    <message>
        <source>The sound was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>أُعيد ترميز الصوت لأن هذا الخرج لا يقبله كما هو.</translation>
    </message>
    <message>
        <source>The picture was encoded anew, because this output can&apos;t take it as it is.</source>
        <comment>What was done to make a conversion work</comment>
        <translation>أُعيد ترميز الصورة لأن هذا الخرج لا يقبلها كما هي.</translation>
    </message>
    <message>
        <source>The video is damaged in places, first at %@.</source>
        <comment>Remark on a whole result, with a time</comment>
        <translation>الفيديو تالف في بعض المواضع، أولها عند %@.</translation>
    </message>
    <message>
        <source>The video is damaged in places.</source>
        <comment>Remark on a whole result</comment>
        <translation>الفيديو تالف في بعض المواضع.</translation>
    </message>
    <message>
        <source>The older file was kept as “%@”.</source>
        <comment>Remark on a short result, with a file&apos;s name</comment>
        <translation>احتُفظ بالملف الأقدم باسم «%@».</translation>
    </message>
    <message>
        <source>Settings…</source>
        <comment>menu command</comment>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>This build contacts nobody.</source>
        <comment>settings</comment>
        <translation>لا تتصل هذه النسخة بأي جهة.</translation>
    </message>
    <message>
        <source>As on the desktop</source>
        <comment>settings, choice of the language</comment>
        <translation>لغة النظام</translation>
    </message>
    <message>
        <source>Settings</source>
        <comment>title of the settings&apos; window</comment>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Send anonymous usage events</source>
        <comment>settings</comment>
        <translation>إرسال بيانات استخدام مجهولة المصدر</translation>
    </message>
    <message>
        <source>Look for updates once a day</source>
        <comment>settings</comment>
        <translation>التحقق من وجود تحديثات مرة يوميًا</translation>
    </message>
    <message>
        <source>Language:</source>
        <comment>settings</comment>
        <translation>اللغة:</translation>
    </message>
    <message>
        <source>From the next start on.</source>
        <comment>settings, language</comment>
        <translation>يسري عند التشغيل التالي.</translation>
    </message>
    <message>
        <source>There is no output named &quot;%@&quot;; did you mean &quot;%@&quot;?</source>
        <comment>Command line: wrong value of --to, and the nearest right ones</comment>
        <translation>لا توجد صيغة إخراج باسم «%@». هل تقصد «%@»؟</translation>
    </message>
    <message>
        <source>&apos;plan&apos; takes a video and an output file, videos and --folder, or --info alone.</source>
        <comment>Command line: wrong usage</comment>
        <translation>يتطلب الأمر «plan» مقطع فيديو وملف إخراج، أو مقاطع فيديو و‎--folder، أو ‎--info وحده.</translation>
    </message>
    <message>
        <source>--overwrite and --skip-existing exclude each other.</source>
        <comment>Command line: wrong usage</comment>
        <translation>لا يمكن الجمع بين ‎--overwrite و‎--skip-existing.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; is no name for &quot;%@&quot;, which makes .%@ files.</source>
        <comment>Command line: name of a result, name of an output, its extension</comment>
        <translation>الاسم «%@» لا يناسب صيغة الإخراج «%@»، فامتداد ملفاتها ‎.%@.</translation>
    </message>
    <message>
        <source>&apos;probe&apos; needs a file.</source>
        <comment>Command line: wrong usage</comment>
        <translation>يتطلب الأمر «probe» ملفًا.</translation>
    </message>
    <message>
        <source>--jobs takes a number, --shard two such as 2/8.</source>
        <comment>Command line: wrong usage</comment>
        <translation>يتطلب ‎--jobs رقمًا واحدًا، و‎--shard رقمين مثل 2/8.</translation>
    </message>
    <message>
        <source>Lists the outputs that --to takes: devices, formats and MP4 qualities.</source>
        <comment>Help: command formats</comment>
        <translation>يسرد صيغ الإخراج التي يقبلها ‎--to: الأجهزة والصيغ ومستويات جودة MP4.</translation>
    </message>
    <message>
        <source>Describes videos. With --json: everything that the tool reports (info), the length (duration, seconds) and the size of the cover picture or null (cover).</source>
        <comment>Help: command probe</comment>
        <translation>يصف مقاطع الفيديو. مع ‎--json: كل ما تذكره الأداة (info) والمدة (duration, seconds) وحجم صورة الغلاف أو null (cover).</translation>
    </message>
    <message>
        <source>Prints the tool&apos;s command line, quoted for a shell, without running it. --to all prints one for each output.</source>
        <comment>Help: command plan</comment>
        <translation>يطبع سطر أوامر الأداة بعلامات اقتباس تناسب الصدفة دون تشغيلها. ومع ‎--to all يطبع سطرًا لكل صيغة إخراج.</translation>
    </message>
    <message>
        <source>Converts videos. Ctrl-C cancels and leaves no unfinished file. A name that begins with a dash goes after --.</source>
        <comment>Help: command convert</comment>
        <translation>يحوّل مقاطع الفيديو. يوقفه Ctrl-C دون ترك ملف غير مكتمل. يوضع الاسم الذي يبدأ بشَرطة بعد ‎--‎.</translation>
    </message>
    <message>
        <source>Usage: %@</source>
        <comment>Help of the command</comment>
        <translation>الاستخدام: %@</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a conversion failed or its result is not whole, 2 wrong usage, 3 video refused, 4 destination refused, 5 a tool is missing, 128 + N stopped by signal N (130 after Ctrl-C). With several videos, the first one that was not converted decides.</source>
        <comment>Help of the command</comment>
        <translation>رمز الإنهاء: 0 تم، 1 فشل التحويل أو كانت النتيجة غير مكتملة، 2 استخدام خاطئ، 3 رُفض الفيديو، 4 رُفضت الوجهة، 5 إحدى الأدوات مفقودة، ⁦128 + N⁩ أوقفته الإشارة N (130 بعد Ctrl-C). عند تحويل عدة مقاطع يكون رمز أول مقطع لم يُحوَّل.</translation>
    </message>
    <message>
        <source>the output: one of those that &apos;formats&apos; lists, or an extension</source>
        <comment>Help: option --to</comment>
        <translation>صيغة الإخراج: إحدى الصيغ التي يسردها «formats»، أو امتداد</translation>
    </message>
    <message>
        <source>the file to write</source>
        <comment>Help: option --output</comment>
        <translation>الملف المراد كتابته</translation>
    </message>
    <message>
        <source>the folder to write to; the files get the videos&apos; names</source>
        <comment>Help: option --folder</comment>
        <translation>المجلد المراد الكتابة فيه؛ تأخذ الملفات أسماء مقاطع الفيديو</translation>
    </message>
    <message>
        <source>takes all videos and music in a folder and below, and keeps its tree</source>
        <comment>Help: option --recursive</comment>
        <translation>يأخذ كل مقاطع الفيديو والموسيقى من المجلد ومجلداته الفرعية مع الحفاظ على بنيتها</translation>
    </message>
    <message>
        <source>takes the names in a file, one a line; - is standard input</source>
        <comment>Help: option --files-from</comment>
        <translation>يأخذ الأسماء من ملف، اسمًا في كل سطر؛ ويعني - الإدخال القياسي</translation>
    </message>
    <message>
        <source>names in that file end with a null character, as after find -print0</source>
        <comment>Help: option --null</comment>
        <translation>تنتهي الأسماء في ذلك الملف بمحرف صفري، كما بعد find -print0</translation>
    </message>
    <message>
        <source>converts N videos side by side; 0 stands for as many as suit the cores</source>
        <comment>Help: option --jobs</comment>
        <translation>يحوّل N من مقاطع الفيديو في آن واحد؛ ويعني 0 العدد المناسب لأنوية المعالج</translation>
    </message>
    <message>
        <source>replaces files that exist; a video itself is never replaced</source>
        <comment>Help: option --overwrite</comment>
        <translation>يستبدل الملفات الموجودة، ولا يستبدل مقطعًا أصليًا أبدًا</translation>
    </message>
    <message>
        <source>leaves whole results that are newer than their videos alone, and makes cut ones again</source>
        <comment>Help: option --skip-existing</comment>
        <translation>يُبقي النتائج المكتملة الأحدث من مقاطعها الأصلية كما هي، ويعيد إنشاء المبتورة منها</translation>
    </message>
    <message>
        <source>takes the K-th of N parts of the videos; the parts depend on their names alone</source>
        <comment>Help: option --shard</comment>
        <translation>يأخذ الجزء K من N من أجزاء مقاطع الفيديو؛ ويعتمد التقسيم على أسمائها وحدها</translation>
    </message>
    <message>
        <source>takes a description saved by &apos;probe --json&apos; (- for standard input) and prints only the arguments that depend on it</source>
        <comment>Help: option --info</comment>
        <translation>يأخذ وصفًا حفظه «probe --json» (- للإدخال القياسي) ويطبع فقط المعاملات التي تعتمد عليه</translation>
    </message>
    <message>
        <source>prints failures only</source>
        <comment>Help: option --quiet</comment>
        <translation>يطبع حالات الفشل فقط</translation>
    </message>
    <message>
        <source>prints JSON; &apos;convert&apos; prints one object a line</source>
        <comment>Help: option --json</comment>
        <translation>يطبع JSON؛ ويطبع «convert» كائنًا واحدًا في كل سطر</translation>
    </message>
    <message>
        <source>prints diagnostics and the tool&apos;s full output to standard error</source>
        <comment>Help: option --verbose</comment>
        <translation>يطبع التشخيص ومخرجات الأداة كاملة في مجرى الأخطاء القياسي</translation>
    </message>
    <message>
        <source>prints this help</source>
        <comment>Help: option --help</comment>
        <translation>يطبع هذه المساعدة</translation>
    </message>
    <message>
        <source>prints the version</source>
        <comment>Help: option --version</comment>
        <translation>يطبع الإصدار</translation>
    </message>
    <message>
        <source>%d of %d</source>
        <comment>Number of videos that are done, and of all</comment>
        <translation>%d من %d</translation>
    </message>
    <message>
        <source>%@: %@ is there already</source>
        <comment>Video, file that was made of it in an earlier run</comment>
        <translation>%@: الملف %@ موجود بالفعل</translation>
    </message>
    <message>
        <source>The list of videos can&apos;t be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>تعذّرت قراءة قائمة مقاطع الفيديو.</translation>
    </message>
    <message>
        <source>There is no such folder, or it may not be read.</source>
        <comment>Why videos can&apos;t be converted</comment>
        <translation>المجلد غير موجود، أو ليس لديك إذن بقراءته.</translation>
    </message>
    <message>
        <source>The destination&apos;s name can&apos;t be represented as text. Please choose another one.</source>
        <comment>Why a conversion&apos;s result can&apos;t be written</comment>
        <translation>لا يمكن تمثيل اسم الوجهة كنص. يُرجى اختيار اسم آخر.</translation>
    </message>
    <message>
        <source>The tool can&apos;t examine videos: %@</source>
        <comment>Why no video can be converted; the tool&apos;s own words follow</comment>
        <translation>لا تستطيع الأداة فحص مقاطع الفيديو: %@</translation>
    </message>
    <message>
        <source>The tool needed more memory, threads or files than any video should.</source>
        <comment>Why a conversion failed</comment>
        <translation>احتاجت الأداة إلى ذاكرة أو خيوط معالجة أو ملفات أكثر مما ينبغي لأي مقطع فيديو.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the cover picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا تقبل صيغة الإخراج هذه صورة الغلاف.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold a picture of odd width or height.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا تقبل صيغة الإخراج هذه صورة ذات عرض أو ارتفاع فردي.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s sound.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا تقبل صيغة الإخراج هذه صوت الفيديو.</translation>
    </message>
    <message>
        <source>This output can&apos;t hold the video&apos;s picture.</source>
        <comment>Why a conversion failed</comment>
        <translation>لا تقبل صيغة الإخراج هذه صورة الفيديو.</translation>
    </message>
    <message>
        <source>Drop to convert</source>
        <comment>over the window, while a file is dragged</comment>
        <translation>أفلت للتحويل</translation>
    </message>
    <message>
        <source>One video at a time: wait for the end of this one</source>
        <comment>over the window, while a file is dragged that it can&apos;t take now</comment>
        <translation>مقطع واحد في كل مرة: انتظر انتهاء المقطع الحالي</translation>
    </message>
    <message>
        <source>Only files can be dropped here</source>
        <comment>over the window, while something else than a file is dragged</comment>
        <translation>لا يمكن إفلات سوى الملفات هنا</translation>
    </message>
    <message>
        <source>Next: “%@”</source>
        <comment>name of a video that came while another one is converted</comment>
        <translation>التالي: «⁨%@⁩»</translation>
    </message>
    <message>
        <source>Examining “%@”</source>
        <comment>name of a video</comment>
        <translation>جارٍ فحص «⁨%@⁩»</translation>
    </message>
    <message>
        <source>%@ left</source>
        <comment>time left of a conversion, such as 1m 30s</comment>
        <translation>بقي %@</translation>
    </message>
    <message>
        <source>%@ – %@</source>
        <comment>window title while converting: percentage and time left, program name</comment>
        <translation>%@ – %@</translation>
    </message>
    <message>
        <source>The video has no sound</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>لا يحتوي الفيديو على صوت</translation>
    </message>
    <message>
        <source>The video has no picture</source>
        <comment>why an entry of the format menu is not offered</comment>
        <translation>لا يحتوي الفيديو على صورة</translation>
    </message>
    <message>
        <source>Drag the result from here into a folder or a mail</source>
        <comment>tool tip of the picture</comment>
        <translation>اسحب النتيجة من هنا إلى مجلد أو رسالة بريد</translation>
    </message>
    <message>
        <source>Open “%@” again</source>
        <comment>with the name of the last video</comment>
        <translation>إعادة فتح «⁨%@⁩»</translation>
    </message>
    <message>
        <source>One video is converted at a time here. Left out: %d</source>
        <comment>several videos were dropped, with the number of the others</comment>
        <translation>يُحوَّل هنا مقطع واحد في كل مرة. المقاطع المتروكة: %d</translation>
    </message>
    <message>
        <source>Copy command</source>
        <comment>copies a command line that converts several videos</comment>
        <translation>نسخ الأمر</translation>
    </message>
    <message>
        <source>Second try, in another way: the first one could not work.</source>
        <comment>while converting</comment>
        <translation>محاولة ثانية بطريقة أخرى: لم تنجح الأولى.</translation>
    </message>
    <message>
        <source>Try another format</source>
        <comment>after a conversion that failed</comment>
        <translation>تجربة صيغة أخرى</translation>
    </message>
    <message>
        <source>Show the log</source>
        <comment>what the tool said in a conversion that failed</comment>
        <translation>إظهار السجل</translation>
    </message>
    <message>
        <source>Copied</source>
        <comment>a command line is on the clipboard now</comment>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Copies the sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>ينسخ الصوت في ثوانٍ</translation>
    </message>
    <message>
        <source>Encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>يعيد ترميز الصوت</translation>
    </message>
    <message>
        <source>Copies the picture, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>ينسخ الصورة في ثوانٍ</translation>
    </message>
    <message>
        <source>Copies picture and sound, takes seconds</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>ينسخ الصورة والصوت في ثوانٍ</translation>
    </message>
    <message>
        <source>Copies the picture, encodes the sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>ينسخ الصورة ويعيد ترميز الصوت</translation>
    </message>
    <message>
        <source>Encodes the picture anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>يعيد ترميز الصورة</translation>
    </message>
    <message>
        <source>Encodes the picture anew, copies the sound</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>يعيد ترميز الصورة وينسخ الصوت</translation>
    </message>
    <message>
        <source>Encodes picture and sound anew</source>
        <comment>What an entry of the format menu does with the video</comment>
        <translation>يعيد ترميز الصورة والصوت</translation>
    </message>
    <message>
        <source>Copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>جارٍ نسخ الصوت</translation>
    </message>
    <message>
        <source>Encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>جارٍ ترميز الصوت</translation>
    </message>
    <message>
        <source>Copying the picture</source>
        <comment>What a running conversion does</comment>
        <translation>جارٍ نسخ الصورة</translation>
    </message>
    <message>
        <source>Copying picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>جارٍ نسخ الصورة والصوت</translation>
    </message>
    <message>
        <source>Copying the picture, encoding the sound</source>
        <comment>What a running conversion does</comment>
        <translation>جارٍ نسخ الصورة وترميز الصوت</translation>
    </message>
    <message>
        <source>Encoding the picture</source>
        <comment>What a running conversion does</comment>
        <translation>جارٍ ترميز الصورة</translation>
    </message>
    <message>
        <source>Encoding the picture, copying the sound</source>
        <comment>What a running conversion does</comment>
        <translation>جارٍ ترميز الصورة ونسخ الصوت</translation>
    </message>
    <message>
        <source>Encoding picture and sound</source>
        <comment>What a running conversion does</comment>
        <translation>جارٍ ترميز الصورة والصوت</translation>
    </message>
    <message>
        <source>Scales to %d × %d</source>
        <comment>What an entry of the format menu does: width, height</comment>
        <translation>يغيّر الأبعاد إلى ⁦%d × %d⁩</translation>
    </message>
    <message>
        <source>%d × %d</source>
        <comment>width and height of a picture</comment>
        <translation>⁦%d × %d⁩</translation>
    </message>
    <message>
        <source>The result will take about %@.</source>
        <comment>in the save panel, with a size such as 12.3 MB</comment>
        <translation>ستشغل النتيجة حوالي %@.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <comment>update dialog, button</comment>
        <translation>تخطي هذا الإصدار</translation>
    </message>
    <message>
        <source>Get it where you got Video Converter from.</source>
        <comment>update dialog, when neither a download nor a web site is known</comment>
        <translation>احصل عليه من المصدر الذي حصلت منه على Video Converter.</translation>
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
        <translation>صورة من الفيديو</translation>
    </message>
    <message>
        <source>Examining the video</source>
        <translation>جارٍ فحص الفيديو</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>منطقة الإفلات</translation>
    </message>
    <message>
        <source>Drag a video here</source>
        <translation>اسحب مقطع فيديو إلى هنا</translation>
    </message>
    <message>
        <source>or choose it from a folder</source>
        <translation>أو اختره من مجلد</translation>
    </message>
    <message>
        <source>Choose a video to convert</source>
        <translation>اختيار مقطع فيديو لتحويله</translation>
    </message>
    <message>
        <source>Choose what the video becomes</source>
        <translation>اختيار الصيغة التي سيُحوَّل إليها الفيديو</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>جارٍ التحويل…</translation>
    </message>
    <message>
        <source>Progress of the conversion</source>
        <translation>تقدّم التحويل</translation>
    </message>
    <message>
        <source>Cancel the conversion</source>
        <translation>إلغاء التحويل</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Conversion complete</source>
        <translation>اكتمل التحويل</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>إظهار في المجلد</translation>
    </message>
    <message>
        <source>Show the converted file in its folder</source>
        <translation>إظهار الملف المحوَّل في مجلده</translation>
    </message>
    <message>
        <source>Convert Another</source>
        <translation>تحويل مقطع آخر</translation>
    </message>
    <message>
        <source>Start over with another video</source>
        <translation>البدء من جديد بمقطع فيديو آخر</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>Convert &amp;To</source>
        <translation>تحويل &amp;إلى</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Devices</source>
        <comment>heading in the format menu</comment>
        <translation>الأجهزة</translation>
    </message>
    <message>
        <source>Formats</source>
        <comment>heading in the format menu</comment>
        <translation>الصيغ</translation>
    </message>
    <message>
        <source>Audio (MP3)</source>
        <comment>item of the format menu</comment>
        <translation>صوت (MP3)</translation>
    </message>
    <message>
        <source>MP4 quality</source>
        <comment>heading in the format menu</comment>
        <translation>جودة MP4</translation>
    </message>
    <message>
        <source>MP4 Low Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4 بجودة منخفضة</translation>
    </message>
    <message>
        <source>MP4 Medium Quality</source>
        <comment>item of the format menu</comment>
        <translation>MP4 بجودة متوسطة</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;فتح…</translation>
    </message>
    <message>
        <source>&amp;Cancel Conversion</source>
        <translation>إل&amp;غاء التحويل</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>إ&amp;ظهار في المجلد</translation>
    </message>
    <message>
        <source>Convert &amp;Another</source>
        <translation>تحويل مقطع آ&amp;خر</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message>
        <source>&amp;Paste Video</source>
        <translation>&amp;لصق الفيديو</translation>
    </message>
    <message>
        <source>&amp;About Video Converter</source>
        <translation>&amp;حول Video Converter</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Open the result in its player</source>
        <translation>فتح النتيجة في مشغّلها</translation>
    </message>
    <message>
        <source>Convert as &amp;Last Time</source>
        <translation>تحويل كالمرة ال&amp;سابقة</translation>
    </message>
</context>
</TS>
