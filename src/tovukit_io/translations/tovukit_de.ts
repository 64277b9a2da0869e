<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>TovuAPISurveyData</name>
    <message>
        <source>Thank You!</source>
        <translation>Vielen Dank!</translation>
    </message>
    <message>
        <source>Your feedback is greatly appreciated.</source>
        <translation>Wir freuen uns sehr über Ihr Feedback.</translation>
    </message>
    <message>
        <source>Not likely</source>
        <translation>Unwahrscheinlich</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>Sehr wahrscheinlich</translation>
    </message>
</context>
<context>
    <name>TovuDropdownQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>Bitte wählen Sie eine Option.</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>Option wählen</translation>
    </message>
</context>
<context>
    <name>TovuIntroViewModel</name>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Los geht’s</translation>
    </message>
</context>
<context>
    <name>TovuMultiNPSQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>Bitte bewerten Sie alle Punkte.</translation>
    </message>
</context>
<context>
    <name>TovuMultiRatingQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>Bitte bewerten Sie alle Punkte.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>TovuMultipleChoiceQuestionViewModel</name>
    <message>
        <source>Please select at least one option.</source>
        <translation>Bitte wählen Sie mindestens eine Option.</translation>
    </message>
    <message>
        <source>Select all that apply</source>
        <translation>Alle zutreffenden auswählen</translation>
    </message>
</context>
<context>
    <name>TovuNPSBands</name>
    <message>
        <source>Not likely</source>
        <translation>Unwahrscheinlich</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>Sehr wahrscheinlich</translation>
    </message>
</context>
<context>
    <name>TovuProgressViewModel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Question %1 of %2</source>
        <translation>Frage %1 von %2</translation>
    </message>
</context>
<context>
    <name>TovuQuestionViewModel</name>
    <message>
        <source>Submit</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Weiter →</translation>
    </message>
</context>
<context>
    <name>TovuRatingQuestionViewModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>%1 of %2 stars</source>
        <translation>%1 von %2 Sternen</translation>
    </message>
    <message>
        <source>%1 of %2 hearts</source>
        <translation>%1 von %2 Herzen</translation>
    </message>
    <message>
        <source>%1 of %2 circles</source>
        <translation>%1 von %2 Kreisen</translation>
    </message>
    <message>
        <source>%1 of %2 tiles</source>
        <translation>%1 von %2 Kacheln</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>TovuScaleParts</name>
    <message>
        <source>Score %1</source>
        <translation>Wert %1</translation>
    </message>
</context>
<context>
    <name>TovuScoreRowItem</name>
    <message>
        <source>Score %1</source>
        <translation>Wert %1</translation>
    </message>
</context>
<context>
    <name>TovuSingleChoiceQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>Bitte wählen Sie eine Option.</translation>
    </message>
</context>
<context>
    <name>TovuSurveyContent</name>
    <message>
        <source>Close survey</source>
        <translation>Umfrage schließen</translation>
    </message>
</context>
<context>
    <name>TovuSurveySheet</name>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
</context>
<context>
    <name>TovuSurveyView</name>
    <message>
        <source>Close survey</source>
        <translation>Umfrage schließen</translation>
    </message>
</context>
<context>
    <name>TovuTextBoxQuestionViewModel</name>
    <message>
        <source>Please enter an answer.</source>
        <translation>Bitte geben Sie eine Antwort ein.</translation>
    </message>
    <message>
        <source>Type your answer here…</source>
        <translation>Ihre Antwort hier eingeben …</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
</context>
<context>
    <name>TovuThankYouViewModel</name>
    <message>
        <source>Thank you!</source>
        <translation>Vielen Dank!</translation>
    </message>
    <message>
        <source>Your feedback helps us improve.</source>
        <translation>Ihr Feedback hilft uns, besser zu werden.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>TovuToasterView</name>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
</context>
</TS>
