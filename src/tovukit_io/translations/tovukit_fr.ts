<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>TovuAPISurveyData</name>
    <message>
        <source>Thank You!</source>
        <translation>Merci !</translation>
    </message>
    <message>
        <source>Your feedback is greatly appreciated.</source>
        <translation>Nous vous remercions vivement de votre avis.</translation>
    </message>
    <message>
        <source>Not likely</source>
        <translation>Peu probable</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>Très probable</translation>
    </message>
</context>
<context>
    <name>TovuDropdownQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>Veuillez sélectionner une option.</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>Sélectionnez une option</translation>
    </message>
</context>
<context>
    <name>TovuIntroViewModel</name>
    <message>
        <source>Let&apos;s get started</source>
        <translation>C’est parti</translation>
    </message>
</context>
<context>
    <name>TovuMultiNPSQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>Veuillez évaluer tous les éléments.</translation>
    </message>
</context>
<context>
    <name>TovuMultiRatingQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>Veuillez évaluer tous les éléments.</translation>
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
        <translation>Veuillez sélectionner au moins une option.</translation>
    </message>
    <message>
        <source>Select all that apply</source>
        <translation>Sélectionnez toutes les réponses pertinentes</translation>
    </message>
</context>
<context>
    <name>TovuNPSBands</name>
    <message>
        <source>Not likely</source>
        <translation>Peu probable</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>Très probable</translation>
    </message>
</context>
<context>
    <name>TovuProgressViewModel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Question %1 of %2</source>
        <translation>Question %1 sur %2</translation>
    </message>
</context>
<context>
    <name>TovuQuestionViewModel</name>
    <message>
        <source>Submit</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Suivant →</translation>
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
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>%1 of %2 stars</source>
        <translation>%1 étoiles sur %2</translation>
    </message>
    <message>
        <source>%1 of %2 hearts</source>
        <translation>%1 cœurs sur %2</translation>
    </message>
    <message>
        <source>%1 of %2 circles</source>
        <translation>%1 cercles sur %2</translation>
    </message>
    <message>
        <source>%1 of %2 tiles</source>
        <translation>%1 cases sur %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>TovuScaleParts</name>
    <message>
        <source>Score %1</source>
        <translation>Note %1</translation>
    </message>
</context>
<context>
    <name>TovuScoreRowItem</name>
    <message>
        <source>Score %1</source>
        <translation>Note %1</translation>
    </message>
</context>
<context>
    <name>TovuSingleChoiceQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>Veuillez sélectionner une option.</translation>
    </message>
</context>
<context>
    <name>TovuSurveyContent</name>
    <message>
        <source>Close survey</source>
        <translation>Fermer l’enquête</translation>
    </message>
</context>
<context>
    <name>TovuSurveySheet</name>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
</context>
<context>
    <name>TovuSurveyView</name>
    <message>
        <source>Close survey</source>
        <translation>Fermer l’enquête</translation>
    </message>
</context>
<context>
    <name>TovuTextBoxQuestionViewModel</name>
    <message>
        <source>Please enter an answer.</source>
        <translation>Veuillez saisir une réponse.</translation>
    </message>
    <message>
        <source>Type your answer here…</source>
        <translation>Saisissez votre réponse ici…</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
</context>
<context>
    <name>TovuThankYouViewModel</name>
    <message>
        <source>Thank you!</source>
        <translation>Merci !</translation>
    </message>
    <message>
        <source>Your feedback helps us improve.</source>
        <translation>Votre avis nous aide à nous améliorer.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>TovuToasterView</name>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
</context>
</TS>
