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
<message><source>Find</source><translation>بحث</translation></message>
<message><source>Find Next</source><translation>البحث عن التالي</translation></message>
<message><source>Find Previous</source><translation>البحث عن السابق</translation></message>
<message><source>Not found</source><translation>غير موجود</translation></message>
<message><source>Close</source><translation>إغلاق</translation></message>
<message><source>Look in:</source><translation>البحث في:</translation></message>
<message><source>Folder:</source><translation>المجلد:</translation></message>
<message><source>Application:</source><translation>التطبيق:</translation></message>
<message><source>Choose</source><translation>اختيار</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>تتعذر قراءة النص الموجود في %@. نزّل برنامج التثبيت مرة أخرى وشغّله من هناك.</translation></message>
<message><source>%@, selected</source><translation>%@، محدد</translation></message>
<message><source>%@, not selected</source><translation>%@، غير محدد</translation></message>
<message><source>%@, partly selected</source><translation>%@، محدد جزئيًا</translation></message>
<message><source>%@, not available</source><translation>%@، غير متاح</translation></message>
</context>
</TS>
