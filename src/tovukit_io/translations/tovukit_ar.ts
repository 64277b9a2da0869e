<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
<context>
    <name>TovuAPISurveyData</name>
    <message>
        <source>Thank You!</source>
        <translation>شكرًا لك!</translation>
    </message>
    <message>
        <source>Your feedback is greatly appreciated.</source>
        <translation>نقدّر ملاحظاتك كثيرًا.</translation>
    </message>
    <message>
        <source>Not likely</source>
        <translation>غير محتمل</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>محتمل جدًا</translation>
    </message>
</context>
<context>
    <name>TovuDropdownQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>يُرجى اختيار أحد الخيارات.</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>اختر خيارًا</translation>
    </message>
</context>
<context>
    <name>TovuIntroViewModel</name>
    <message>
        <source>Let&apos;s get started</source>
        <translation>لنبدأ</translation>
    </message>
</context>
<context>
    <name>TovuMultiNPSQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>يُرجى تقييم جميع العناصر.</translation>
    </message>
</context>
<context>
    <name>TovuMultiRatingQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>يُرجى تقييم جميع العناصر.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>TovuMultipleChoiceQuestionViewModel</name>
    <message>
        <source>Please select at least one option.</source>
        <translation>يُرجى اختيار خيار واحد على الأقل.</translation>
    </message>
    <message>
        <source>Select all that apply</source>
        <translation>اختر كل ما ينطبق</translation>
    </message>
</context>
<context>
    <name>TovuNPSBands</name>
    <message>
        <source>Not likely</source>
        <translation>غير محتمل</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>محتمل جدًا</translation>
    </message>
</context>
<context>
    <name>TovuProgressViewModel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Question %1 of %2</source>
        <translation>السؤال %1 من %2</translation>
    </message>
</context>
<context>
    <name>TovuQuestionViewModel</name>
    <message>
        <source>Submit</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>التالي ←</translation>
    </message>
</context>
<context>
    <name>TovuRatingQuestionViewModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>%1 of %2 stars</source>
        <translation>%1 من %2 نجوم</translation>
    </message>
    <message>
        <source>%1 of %2 hearts</source>
        <translation>%1 من %2 قلوب</translation>
    </message>
    <message>
        <source>%1 of %2 circles</source>
        <translation>%1 من %2 دوائر</translation>
    </message>
    <message>
        <source>%1 of %2 tiles</source>
        <translation>%1 من %2 مربعات</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>TovuScaleParts</name>
    <message>
        <source>Score %1</source>
        <translation>الدرجة %1</translation>
    </message>
</context>
<context>
    <name>TovuScoreRowItem</name>
    <message>
        <source>Score %1</source>
        <translation>الدرجة %1</translation>
    </message>
</context>
<context>
    <name>TovuSingleChoiceQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>يُرجى اختيار أحد الخيارات.</translation>
    </message>
</context>
<context>
    <name>TovuSurveyContent</name>
    <message>
        <source>Close survey</source>
        <translation>إغلاق الاستبيان</translation>
    </message>
</context>
<context>
    <name>TovuSurveySheet</name>
    <message>
        <source>Skip</source>
        <translation>تخطٍّ</translation>
    </message>
</context>
<context>
    <name>TovuSurveyView</name>
    <message>
        <source>Close survey</source>
        <translation>إغلاق الاستبيان</translation>
    </message>
</context>
<context>
    <name>TovuTextBoxQuestionViewModel</name>
    <message>
        <source>Please enter an answer.</source>
        <translation>يُرجى إدخال إجابة.</translation>
    </message>
    <message>
        <source>Type your answer here…</source>
        <translation>اكتب إجابتك هنا…</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>تعليق</translation>
    </message>
</context>
<context>
    <name>TovuThankYouViewModel</name>
    <message>
        <source>Thank you!</source>
        <translation>شكرًا لك!</translation>
    </message>
    <message>
        <source>Your feedback helps us improve.</source>
        <translation>تساعدنا ملاحظاتك على التحسّن.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
</context>
<context>
    <name>TovuToasterView</name>
    <message>
        <source>Skip</source>
        <translation>تخطٍّ</translation>
    </message>
</context>
</TS>
