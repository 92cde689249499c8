<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context><name>Scrivel</name>
<message><source>Install %@</source><translation>تثبيت %@</translation></message>
<message><source>Extracting %@…</source><translation>جارٍ استخراج %@…</translation></message>
<message><source>Installing %@ to the Applications folder…</source><translation>جارٍ تثبيت %@ في مجلد التطبيقات…</translation></message>
<message><source>Launching %@ for the first time…</source><translation>جارٍ تشغيل %@ لأول مرة…</translation></message>
<message><source>Canceling…</source><translation>جارٍ الإلغاء…</translation></message>
<message><source>Cancel</source><translation>إلغاء</translation></message>
<message><source>Unable to retreived required files for %@ installation.</source><translation>تعذّر الحصول على الملفات المطلوبة لتثبيت %@.</translation></message>
<message><source>Please try again later.</source><translation>يُرجى المحاولة مرة أخرى لاحقًا.</translation></message>
<message><source>OK</source><translation>موافق</translation></message>
<message><source>Scrivel and Microsoft Word cannot be open during %@ installation.</source><translation>لا يمكن أن يكون Scrivel وMicrosoft Word مفتوحين أثناء تثبيت %@.</translation></message>
<message><source>Please quit Scrivel and Microsoft Word and click the OK button to continue, or click the Quit Installer button to quit this installer.</source><translation>يُرجى إنهاء Scrivel وMicrosoft Word والنقر على زر «موافق» للمتابعة، أو النقر على زر «إنهاء برنامج التثبيت» لإنهاء برنامج التثبيت هذا.</translation></message>
<message><source>Quit Installer</source><translation>إنهاء برنامج التثبيت</translation></message>
<message><source>Would you like to overwrite the %@ at /Applications/%@?</source><translation>هل تريد استبدال %@ الموجود في ‎/Applications/%@؟</translation></message>
<message><source>You are about to install %@ version %@, but version %@ is already installed.  This cannot be undone.</source><translation>أنت على وشك تثبيت %@ الإصدار %@، ولكن الإصدار %@ مثبَّت بالفعل. لا يمكن التراجع عن هذا الإجراء.</translation></message>
<message><source>No</source><translation>لا</translation></message>
<message><source>Yes</source><translation>نعم</translation></message>
<message><source>Ready to install.</source><translation>جاهز للتثبيت.</translation></message>
<message><source>Install</source><translation>تثبيت</translation></message>
<message><source>Installation progress</source><translation>تقدم التثبيت</translation></message>
<message><source>Scrivel 21 will be installed in the Applications folder of this computer and opened when it is ready.</source><translation>سيتم تثبيت Scrivel 21 في مجلد التطبيقات على هذا الكمبيوتر، ثم فتحه عندما يصبح جاهزًا.</translation></message>
<message><source>%@ KB of %@ KB</source><translation>%@ ك.ب من %@ ك.ب</translation></message>
<message><source>%@ MB of %@ MB</source><translation>%@ م.ب من %@ م.ب</translation></message>
<message><source>%@ GB of %@ GB</source><translation>%@ ج.ب من %@ ج.ب</translation></message>
<message><source>The installer of %@ needs administrator rights.</source><translation>يحتاج برنامج تثبيت %@ إلى صلاحيات المسؤول.</translation></message>
<message><source>Password:</source><translation>كلمة السر:</translation></message>
<message><source>Welcome</source><translation>مرحبًا</translation></message>
<message><source>Read Me</source><translation>اقرأني</translation></message>
<message><source>License</source><translation>الترخيص</translation></message>
<message><source>Customization</source><translation>التخصيص</translation></message>
<message><source>Updating System</source><translation>تحديث النظام</translation></message>
<message><source>Summary</source><translation>الملخص</translation></message>
<message><source>Finding Scrivel</source><translation>البحث عن Scrivel</translation></message>
<message><source>Found Scrivel</source><translation>تم العثور على Scrivel</translation></message>
<message><source>Welcome to Scrivel 21</source><translation>مرحبًا بك في Scrivel 21</translation></message>
<message><source>End User License Agreement</source><translation>اتفاقية ترخيص المستخدم النهائي</translation></message>
<message><source>Select Components</source><translation>تحديد المكوّنات</translation></message>
<message><source>Thank you for using Scrivel 21</source><translation>شكرًا لاستخدامك Scrivel 21</translation></message>
<message><source>Finish</source><translation>الانتهاء</translation></message>
<message><source>Uninstall Scrivel 21</source><translation>إلغاء تثبيت Scrivel 21</translation></message>
<message><source>Welcome to Scrivel 21 Update</source><translation>مرحبًا بك في تحديث Scrivel 21</translation></message>
<message><source>Penmark for Microsoft Word</source><translation>أداة Penmark لـ Microsoft Word</translation></message>
<message><source>Scrivel Penmark Configuration</source><translation>إعداد Scrivel Penmark</translation></message>
<message><source>Welcome to Scrivel Penmark</source><translation>مرحبًا بك في Scrivel Penmark</translation></message>
<message><source>Continue</source><translation>متابعة</translation></message>
<message><source>Next</source><translation>التالي</translation></message>
<message><source>Done</source><translation>تم</translation></message>
<message><source>Exit</source><translation>خروج</translation></message>
<message><source>Retry</source><translation>إعادة المحاولة</translation></message>
<message><source>Scrivel 21 Installer</source><translation>برنامج تثبيت Scrivel 21</translation></message>
<message><source>Uninstall will remove Scrivel Penmark from your computer.  Are you sure you want to do this?</source><translation>سيؤدي إلغاء التثبيت إلى إزالة Scrivel Penmark من الكمبيوتر. هل تريد بالتأكيد القيام بذلك؟</translation></message>
<message><source>Uninstall will remove all external Scrivel components from your computer.  Are you sure you want to do this?</source><translation>سيؤدي إلغاء التثبيت إلى إزالة جميع مكوّنات Scrivel الخارجية من الكمبيوتر. هل تريد بالتأكيد القيام بذلك؟</translation></message>
<message><source>Back</source><translation>السابق</translation></message>
<message><source>%@ Customizer</source><translation>أداة تخصيص %@</translation></message>
<message><source>%@ was removed.</source><translation>تمت إزالة «%@».</translation></message>
<message><source>%@ could not be removed.</source><translation>تعذّرت إزالة «%@».</translation></message>
<message><source>%@ was installed.</source><translation>تم تثبيت «%@».</translation></message>
<message><source>%@ could not be installed.</source><translation>تعذّر تثبيت «%@».</translation></message>
<message><source>The text “%@” is missing from this copy of the installer. Get a complete copy to read it.</source><translation>النص «%@» غير موجود في هذه النسخة من برنامج التثبيت. لقراءته، يُرجى الحصول على نسخة كاملة.</translation></message>
<message><source>The list of components is missing from this copy of the installer. Get a complete copy to choose components.</source><translation>قائمة المكوّنات غير موجودة في هذه النسخة من برنامج التثبيت. لاختيار المكوّنات، يُرجى الحصول على نسخة كاملة.</translation></message>
<message><source>Help</source><translation>المساعدة</translation></message>
<message><source>Install Log</source><translation>سجل التثبيت</translation></message>
<message><source>The install log is empty.</source><translation>سجل التثبيت فارغ.</translation></message>
<message><source>Nothing was changed.</source><translation>لم يتم تغيير أي شيء.</translation></message>
<message><source>Steps</source><translation>الخطوات</translation></message>
<message><source>Looking at what is installed on this computer…</source><translation>جارٍ التحقق مما هو مثبَّت على هذا الكمبيوتر…</translation></message>
<message><source>Search progress</source><translation>تقدم البحث</translation></message>
<message><source>This can take a moment.</source><translation>قد يستغرق هذا بعض الوقت.</translation></message>
<message><source>Please read the license agreement. To continue, you need to agree to it.</source><translation>يُرجى قراءة اتفاقية الترخيص. يجب الموافقة عليها للمتابعة.</translation></message>
<message><source>License agreement</source><translation>اتفاقية الترخيص</translation></message>
<message><source>Answer to the license agreement</source><translation>الرد على اتفاقية الترخيص</translation></message>
<message><source>Agree</source><translation>أوافق</translation></message>
<message><source>Disagree</source><translation>لا أوافق</translation></message>
<message><source>Select the components that you want to use. Cleared components are removed.</source><translation>يُرجى تحديد المكوّنات التي تريد استخدامها. ستتم إزالة المكوّنات التي تُلغي تحديدها.</translation></message>
<message><source>Components</source><translation>المكوّنات</translation></message>
<message><source>Component</source><translation>المكوّن</translation></message>
<message><source>Installed</source><translation>مثبَّت</translation></message>
<message><source>Description</source><translation>الوصف</translation></message>
<message><source>Uninstall…</source><translation>إلغاء التثبيت…</translation></message>
<message><source>Removes all components from this computer</source><translation>يزيل جميع المكوّنات من هذا الكمبيوتر</translation></message>
<message><source>This is the result of the installation. The log holds every step.</source><translation>هذه نتيجة التثبيت. يحتوي السجل على جميع الخطوات.</translation></message>
<message><source>Result of the installation</source><translation>نتيجة التثبيت</translation></message>
<message><source>This is the result for the components that you selected. The log holds every step.</source><translation>هذه نتيجة المكوّنات التي حدّدتها. يحتوي السجل على جميع الخطوات.</translation></message>
<message><source>Result of the change</source><translation>نتيجة التغيير</translation></message>
<message><source>All components of Scrivel 21 outside its own folder will be removed from this computer: the Penmark add-in for Microsoft Word, the Spotlight importer, the Services and the browser extension.</source><translation>ستتم إزالة جميع مكوّنات Scrivel 21 الموجودة خارج مجلده من هذا الكمبيوتر: وظيفة Penmark الإضافية لـ Microsoft Word، ومستورد Spotlight، والخدمات، وملحق المتصفح.</translation></message>
<message><source>Your libraries and documents stay where they are.</source><translation>ستبقى مكتباتك ومستنداتك في أماكنها.</translation></message>
<message><source>Update progress</source><translation>تقدم التحديث</translation></message>
<message><source>Please leave the computer switched on and do not quit the installer until this is finished.</source><translation>يُرجى إبقاء الكمبيوتر قيد التشغيل وعدم إنهاء برنامج التثبيت حتى تكتمل هذه العملية.</translation></message>
<message><source>This is the result of the uninstallation. The log holds every step.</source><translation>هذه نتيجة إلغاء التثبيت. يحتوي السجل على جميع الخطوات.</translation></message>
<message><source>Result of the uninstallation</source><translation>نتيجة إلغاء التثبيت</translation></message>
<message><source>Quit Microsoft Word, then click Retry.</source><translation>يُرجى إنهاء Microsoft Word، ثم النقر على «إعادة المحاولة».</translation></message>
<message><source>Microsoft Word is open. Its add-ins can only be changed while it is closed. Save your documents in Word before you quit it.</source><translation>برنامج Microsoft Word مفتوح. لا يمكن تغيير وظائفه الإضافية إلا وهو مغلق. يُرجى حفظ مستنداتك في Word قبل إنهائه.</translation></message>
<message><source>Spotlight and Services</source><translation>بحث Spotlight والخدمات</translation></message>
<message><source>Choose who can use the components that you have just selected.</source><translation>يُرجى اختيار مَن يمكنه استخدام المكوّنات التي حدّدتها للتو.</translation></message>
<message><source>Spotlight: find your Scrivel documents with the search of the system</source><translation>بحث Spotlight: العثور على مستندات Scrivel باستخدام بحث النظام</translation></message>
<message><source>Who can use the Spotlight importer</source><translation>مَن يمكنه استخدام مستورد Spotlight</translation></message>
<message><source>Only for me</source><translation>لي فقط</translation></message>
<message><source>Goes into the Library folder of your home folder.</source><translation>يوضع في مجلد المكتبة داخل مجلد المنزل الخاص بك.</translation></message>
<message><source>For all users of this computer</source><translation>لجميع مستخدمي هذا الكمبيوتر</translation></message>
<message><source>Goes into the computer’s Library folder. An administrator password may be asked for.</source><translation>يوضع في مجلد المكتبة الخاص بالكمبيوتر. قد تُطلب كلمة سر المسؤول.</translation></message>
<message><source>Services: use Scrivel from the Services menu of other applications</source><translation>الخدمات: استخدام Scrivel من قائمة «الخدمات» في التطبيقات الأخرى</translation></message>
<message><source>Who can use the Services</source><translation>مَن يمكنه استخدام الخدمات</translation></message>
<message><source>This is the result of the update, copy by copy. The log holds every step.</source><translation>هذه نتيجة التحديث لكل نسخة على حدة. يحتوي السجل على جميع الخطوات.</translation></message>
<message><source>Result of the update</source><translation>نتيجة التحديث</translation></message>
<message><source>There is no copy of Scrivel 21 that this update fits.</source><translation>لا توجد نسخة من Scrivel 21 يناسبها هذا التحديث.</translation></message>
<message><source>Nothing was changed on this computer. A copy that is already up to date, or that was altered, is not offered; the log names every copy that was looked at.</source><translation>لم يتم تغيير أي شيء على هذا الكمبيوتر. لا تُعرض النسخ المحدَّثة بالفعل أو التي جرى تعديلها؛ ويذكر السجل جميع النسخ التي تم فحصها.</translation></message>
<message><source>The add-in goes into the startup folder of each copy and is loaded when Word is opened the next time.</source><translation>توضع الوظيفة الإضافية في مجلد بدء التشغيل لكل نسخة، ويتم تحميلها عند فتح Word في المرة التالية.</translation></message>
<message><source>These are the copies of Microsoft Word that get the Penmark add-in. Add a copy that is missing, or change the startup folder of one.</source><translation>هذه نسخ Microsoft Word التي ستحصل على وظيفة Penmark الإضافية. يمكنك إضافة نسخة غير مدرجة، أو تغيير مجلد بدء التشغيل لإحدى النسخ.</translation></message>
<message><source>Copies of Microsoft Word</source><translation>نسخ Microsoft Word</translation></message>
<message><source>Word</source><translation>Word</translation></message>
<message><source>Startup Folder</source><translation>مجلد بدء التشغيل</translation></message>
<message><source>Version</source><translation>الإصدار</translation></message>
<message><source>Adds a copy of Word and its startup folder</source><translation>يضيف نسخة من Word ومجلد بدء التشغيل الخاص بها</translation></message>
<message><source>Add</source><translation>إضافة</translation></message>
<message><source>Removes the add-in from the selected folder and forgets the folder</source><translation>يزيل الوظيفة الإضافية من المجلد المحدَّد ويحذف المجلد من القائمة</translation></message>
<message><source>Remove</source><translation>إزالة</translation></message>
<message><source>Change…</source><translation>تغيير…</translation></message>
<message><source>Chooses another startup folder for the selected copy</source><translation>يختار مجلد بدء تشغيل آخر للنسخة المحدَّدة</translation></message>
<message><source>Reset</source><translation>إعادة التعيين</translation></message>
<message><source>Forgets the folder that you chose for the selected copy</source><translation>يتجاهل المجلد الذي اخترته للنسخة المحدَّدة</translation></message>
<message><source>Select your Microsoft Word startup folder</source><translation>حدّد مجلد بدء تشغيل Microsoft Word</translation></message>
<message><source>Please locate your installed copy of Microsoft Word</source><translation>يُرجى تحديد موقع نسخة Microsoft Word المثبّتة لديك</translation></message>
<message><source>If you have configured Word to use a different Startup Folder, Or you are using a non-English Language version of Word, Click 'Set' to set the Startup Folder location.</source><translation>إذا كنت قد أعددت Word لاستخدام مجلد بدء تشغيل آخر، أو كنت تستخدم نسخة من Word بلغة غير الإنجليزية، فانقر على «تعيين» لتعيين موقع مجلد بدء التشغيل.</translation></message>
<message><source>Set</source><translation>تعيين</translation></message>
<message><source>The item you picked does not seem to be in a Microsoft Word installation directory.  Please try again.</source><translation>يبدو أن العنصر الذي اخترته ليس في مجلد تثبيت Microsoft Word.  يُرجى المحاولة مرة أخرى.</translation></message>
<message><source>Uninstall Penmark components from the selected folder, immediately?</source><translation>هل تريد إلغاء تثبيت مكوّنات Penmark من المجلد المحدد فورًا؟</translation></message>
<message><source>Uninstall</source><translation>إلغاء التثبيت</translation></message>
<message><source>The %@ could not find Microsoft Word 2016 nor 2019 installed on this computer.</source><translation>%@: لم يُعثر على Microsoft Word 2016 ولا 2019 على هذا الكمبيوتر.</translation></message>
<message><source>The %@ will install the Penmark add-in for the instance of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@: ستُثبَّت وظيفة Penmark الإضافية لنسخة Microsoft Word 2016 أو 2019 المثبّتة على هذا الكمبيوتر.</translation></message>
<message><source>The %@ will install the Penmark add-in for the %d instances of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@: ستُثبَّت وظيفة Penmark الإضافية لعدد %d من نسخ Microsoft Word 2016 أو 2019 المثبّتة على هذا الكمبيوتر.</translation></message>
<message><source>Word Locations…</source><translation>مواقع Word…</translation></message>
<message><source>Shows where each copy of Word gets the add-in, and lets you add or change a place</source><translation>يعرض موضع الوظيفة الإضافية لكل نسخة من Word، ويتيح إضافة موقع أو تغييره</translation></message>
<message><source>Goes back to the components</source><translation>يعود إلى المكوّنات</translation></message>
<message><source>Penmark is the add-in of Scrivel for Microsoft Word. While you write, it inserts citations from your library and builds the bibliography in the style that you choose.</source><translation>تُعد Penmark وظيفة Scrivel الإضافية لـ Microsoft Word. أثناء الكتابة، تُدرج الاستشهادات من مكتبتك وتُنشئ قائمة المراجع بالنمط الذي تختاره.</translation></message>
<message><source>What to do with Penmark</source><translation>الإجراء المطلوب مع Penmark</translation></message>
<message><source>Install Penmark</source><translation>تثبيت Penmark</translation></message>
<message><source>Puts the add-in into the startup folder of every copy of Word on this computer.</source><translation>يضع الوظيفة الإضافية في مجلد بدء التشغيل لكل نسخة من Word على هذا الكمبيوتر.</translation></message>
<message><source>Uninstall Penmark</source><translation>إلغاء تثبيت Penmark</translation></message>
<message><source>Removes the add-in from Word. Your documents and their citations stay as they are.</source><translation>يزيل الوظيفة الإضافية من Word. تبقى مستنداتك والاستشهادات الواردة فيها كما هي.</translation></message>
<message><source>Quit Microsoft Word before you continue.</source><translation>يُرجى إنهاء Microsoft Word قبل المتابعة.</translation></message>
<message><source>This is the result for Scrivel Penmark. The log holds every step.</source><translation>هذه نتيجة Scrivel Penmark. يحتوي السجل على جميع الخطوات.</translation></message>
<message><source>Result for Scrivel Penmark</source><translation>نتيجة Scrivel Penmark</translation></message>
<message><source>This is the result of removing Scrivel Penmark. The log holds every step.</source><translation>هذه نتيجة إزالة Scrivel Penmark. يحتوي السجل على جميع الخطوات.</translation></message>
<message><source>Result of removing Scrivel Penmark</source><translation>نتيجة إزالة Scrivel Penmark</translation></message>
<message><source>Show Log</source><translation>إظهار السجل</translation></message>
<message><source>Installer</source><translation>برنامج التثبيت</translation></message>
<message><source>Customize…</source><translation>تخصيص…</translation></message>
<message><source>Install Penmark…</source><translation>تثبيت Penmark…</translation></message>
<message><source>Update Installed Copies…</source><translation>تحديث النسخ المثبَّتة…</translation></message>
<message><source>Microsoft Word integration</source><translation>التكامل مع Microsoft Word</translation></message>
<message><source>Work with your references while you write</source><translation>استخدام مراجعك أثناء الكتابة</translation></message>
<message><source>Penmark add-in</source><translation>وظيفة Penmark الإضافية</translation></message>
<message><source>Penmark for Microsoft Word: citations and bibliographies in your documents</source><translation>أداة Penmark لـ Microsoft Word: الاستشهادات وقوائم المراجع في مستنداتك</translation></message>
<message><source>Content categories</source><translation>فئات المحتوى</translation></message>
<message><source>Import filters for databases and library catalogues, by subject</source><translation>عوامل تصفية الاستيراد لقواعد البيانات وفهارس المكتبات، حسب الموضوع</translation></message>
<message><source>Chemistry</source><translation>الكيمياء</translation></message>
<message><source>Import filters for chemistry</source><translation>عوامل تصفية الاستيراد للكيمياء</translation></message>
<message><source>Economics</source><translation>الاقتصاد</translation></message>
<message><source>Import filters for economics</source><translation>عوامل تصفية الاستيراد للاقتصاد</translation></message>
<message><source>History</source><translation>التاريخ</translation></message>
<message><source>Import filters for history</source><translation>عوامل تصفية الاستيراد للتاريخ</translation></message>
<message><source>Law</source><translation>القانون</translation></message>
<message><source>Import filters for law</source><translation>عوامل تصفية الاستيراد للقانون</translation></message>
<message><source>Medicine</source><translation>الطب</translation></message>
<message><source>Import filters for medicine</source><translation>عوامل تصفية الاستيراد للطب</translation></message>
<message><source>Physics</source><translation>الفيزياء</translation></message>
<message><source>Import filters for physics</source><translation>عوامل تصفية الاستيراد للفيزياء</translation></message>
<message><source>System integration</source><translation>التكامل مع النظام</translation></message>
<message><source>Scrivel 21 in the rest of your system</source><translation>استخدام Scrivel 21 في بقية أجزاء النظام</translation></message>
<message><source>Spotlight importer</source><translation>مستورد Spotlight</translation></message>
<message><source>Spotlight finds the references in your libraries</source><translation>يعثر Spotlight على المراجع الموجودة في مكتباتك</translation></message>
<message><source>Services</source><translation>الخدمات</translation></message>
<message><source>Scrivel 21 commands in the Services menu of other applications</source><translation>أوامر Scrivel 21 في قائمة «الخدمات» في التطبيقات الأخرى</translation></message>
<message><source>Browser extension</source><translation>ملحق المتصفح</translation></message>
<message><source>Tessaron for Google Chrome: collects references from web pages</source><translation>ملحق Tessaron لـ Google Chrome: يجمع المراجع من صفحات الويب</translation></message>
<message><source>Not found</source><translation>لم يتم العثور على نتائج</translation></message>
<message><source>Find</source><translation>بحث</translation></message>
<message><source>Find Previous</source><translation>البحث عن السابق</translation></message>
<message><source>Find Next</source><translation>البحث عن التالي</translation></message>
<message><source>Close</source><translation>إغلاق</translation></message>
<message><source>%@, not selected</source><translation>%@، غير محدَّد</translation></message>
<message><source>%@, not available</source><translation>%@، غير متاح</translation></message>
<message><source>%@, selected</source><translation>%@، محدَّد</translation></message>
<message><source>%@, partly selected</source><translation>%@، محدَّد جزئيًا</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>تعذّرت قراءة النص الموجود في ‎%@. يُرجى تنزيل برنامج التثبيت مرة أخرى وتشغيل النسخة الجديدة.</translation></message>
<message><source>Look in:</source><translation>البحث في:</translation></message>
<message><source>Folder:</source><translation>المجلد:</translation></message>
<message><source>Application:</source><translation>التطبيق:</translation></message>
<message><source>Choose</source><translation>اختيار</translation></message>
<message><source>Processing: %@</source><translation>جارٍ معالجة: %@</translation></message>
<message><source>Searching for Microsoft Word</source><translation>البحث عن Microsoft Word</translation></message>
<message><source>%@ was left as it is.</source><translation>تُرك «%@» كما هو.</translation></message>
<message><source>%@ is installed, as before.</source><translation>«%@» مثبَّت كما كان.</translation></message>
<message><source>%@ is not installed, as before.</source><translation>«%@» غير مثبَّت كما كان.</translation></message>
<message><source>Administrator rights were refused.</source><translation>رُفضت صلاحيات المسؤول.</translation></message>
<message><source>“%@” is missing from this copy of the installer.</source><translation>«%@» غير موجود في نسخة برنامج التثبيت هذه.</translation></message>
<message><source>“%@” could not be written.</source><translation>تعذّرت كتابة «%@».</translation></message>
<message><source>“%@” is still there.</source><translation>«%@» ما زال موجودًا.</translation></message>
<message><source>It was not chosen who can use it.</source><translation>لم يُحدَّد من يمكنه استخدامه.</translation></message>
<message><source>&#10;A copy of Scrivel was found at the following location:&#10;&#10;%@&#10;&#10;Would you like to update this copy?&#10;</source><translation>&#10;عُثر على نسخة من Scrivel في الموقع التالي:&#10;&#10;⁦%@⁩&#10;&#10;هل تريد تحديث هذه النسخة؟&#10;</translation></message>
<message><source>&#10;An error occurred while attempting to update a copy of Scrivel at this location:&#10;&#10;%@&#10;&#10;Would you like to try again?&#10;</source><translation>&#10;حدث خطأ أثناء تحديث نسخة من Scrivel في هذا الموقع:&#10;&#10;⁦%@⁩&#10;&#10;هل تريد المحاولة مرة أخرى؟&#10;</translation></message>
<message><source>Updating: %@</source><translation>جارٍ تحديث: ⁦%@⁩</translation></message>
<message><source>“%@” was updated.</source><translation>تم تحديث «⁦%@⁩».</translation></message>
<message><source>“%@” could not be updated.</source><translation>تعذّر تحديث «⁦%@⁩».</translation></message>
<message><source>“%@” was left as it is.</source><translation>تُركت «⁦%@⁩» كما هي.</translation></message>
<message><source>“%@” is up to date already.</source><translation>النسخة «⁦%@⁩» محدَّثة بالفعل.</translation></message>
<message><source>This update does not fit “%@”.</source><translation>هذا التحديث لا يناسب «⁦%@⁩».</translation></message>
<message><source>The update did not take effect.</source><translation>لم يسرِ مفعول التحديث.</translation></message>
<message><source>No copy of Microsoft Word was found.</source><translation>لم يُعثر على أي نسخة من Microsoft Word.</translation></message>
<message><source>No copy of Microsoft Word 2016 or 2019 was found.</source><translation>لم يُعثر على أي نسخة من Microsoft Word 2016 أو 2019.</translation></message>
<message><source>Output styles</source><translation>أنماط الإخراج</translation></message>
<message><source>Citation styles of journals and publishers, by subject</source><translation>أنماط الاقتباس للمجلات ودور النشر بحسب الموضوع</translation></message>
<message><source>Engineering</source><translation>الهندسة</translation></message>
<message><source>Citation styles for engineering</source><translation>أنماط الاقتباس للهندسة</translation></message>
<message><source>Humanities</source><translation>العلوم الإنسانية</translation></message>
<message><source>Citation styles for the humanities</source><translation>أنماط الاقتباس للعلوم الإنسانية</translation></message>
<message><source>Sciences</source><translation>العلوم</translation></message>
<message><source>Citation styles for the sciences</source><translation>أنماط الاقتباس للعلوم الطبيعية</translation></message>
<message><source>More on this disk</source><translation>المزيد على هذا القرص</translation></message>
<message><source>What else comes with Scrivel 21; the wizard leaves it as it is</source><translation>ما يأتي أيضًا مع Scrivel 21؛ لا يغيّره المساعد</translation></message>
<message><source>Read Me.txt</source><translation>Read Me.txt</translation></message>
<message><source>Notes on this version, beside the installer</source><translation>ملاحظات عن هذا الإصدار بجوار برنامج التثبيت</translation></message>
<message><source>Examples</source><translation>أمثلة</translation></message>
<message><source>A sample library; it is installed with Scrivel 21 itself</source><translation>مكتبة نموذجية؛ تُثبَّت مع Scrivel 21 نفسه</translation></message>
<message><source>Uninstaller</source><translation>برنامج إلغاء التثبيت</translation></message>
<message><source>Takes Scrivel 21 away again; the Uninstall button of this page removes the other components</source><translation>يزيل Scrivel 21؛ ويزيل زر إلغاء التثبيت في هذه الصفحة المكونات الأخرى</translation></message>
<message><source>Handheld link</source><translation>الربط بالأجهزة المحمولة</translation></message>
<message><source>Needs a later version of this installer</source><translation>يتطلب إصدارًا أحدث من برنامج التثبيت</translation></message>
<message><source>Penmark</source><translation>Penmark</translation></message>
<message><source>Spotlight Support</source><translation>دعم Spotlight</translation></message>
<message><source>Scrivel Services</source><translation>خدمات Scrivel</translation></message>
<message><source>Tessaron Extension</source><translation>ملحق Tessaron</translation></message>
<message><source>Scrivel Content Files</source><translation>ملفات محتوى Scrivel</translation></message>
</context>
</TS>
