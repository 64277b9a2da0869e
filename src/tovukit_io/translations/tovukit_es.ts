<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>TovuAPISurveyData</name>
    <message>
        <source>Thank You!</source>
        <translation>¡Gracias!</translation>
    </message>
    <message>
        <source>Your feedback is greatly appreciated.</source>
        <translation>Agradecemos mucho tus comentarios.</translation>
    </message>
    <message>
        <source>Not likely</source>
        <translation>Poco probable</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>Muy probable</translation>
    </message>
</context>
<context>
    <name>TovuDropdownQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>Selecciona una opción.</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>Selecciona una opción</translation>
    </message>
</context>
<context>
    <name>TovuIntroViewModel</name>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Empecemos</translation>
    </message>
</context>
<context>
    <name>TovuMultiNPSQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>Valora todos los elementos.</translation>
    </message>
</context>
<context>
    <name>TovuMultiRatingQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>Valora todos los elementos.</translation>
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
        <translation>Selecciona al menos una opción.</translation>
    </message>
    <message>
        <source>Select all that apply</source>
        <translation>Selecciona todas las que correspondan</translation>
    </message>
</context>
<context>
    <name>TovuNPSBands</name>
    <message>
        <source>Not likely</source>
        <translation>Poco probable</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>Muy probable</translation>
    </message>
</context>
<context>
    <name>TovuProgressViewModel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Question %1 of %2</source>
        <translation>Pregunta %1 de %2</translation>
    </message>
</context>
<context>
    <name>TovuQuestionViewModel</name>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Siguiente →</translation>
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
        <translation>Enviar</translation>
    </message>
    <message>
        <source>%1 of %2 stars</source>
        <translation>%1 de %2 estrellas</translation>
    </message>
    <message>
        <source>%1 of %2 hearts</source>
        <translation>%1 de %2 corazones</translation>
    </message>
    <message>
        <source>%1 of %2 circles</source>
        <translation>%1 de %2 círculos</translation>
    </message>
    <message>
        <source>%1 of %2 tiles</source>
        <translation>%1 de %2 casillas</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>TovuScaleParts</name>
    <message>
        <source>Score %1</source>
        <translation>Puntuación %1</translation>
    </message>
</context>
<context>
    <name>TovuScoreRowItem</name>
    <message>
        <source>Score %1</source>
        <translation>Puntuación %1</translation>
    </message>
</context>
<context>
    <name>TovuSingleChoiceQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>Selecciona una opción.</translation>
    </message>
</context>
<context>
    <name>TovuSurveyContent</name>
    <message>
        <source>Close survey</source>
        <translation>Cerrar encuesta</translation>
    </message>
</context>
<context>
    <name>TovuSurveySheet</name>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
</context>
<context>
    <name>TovuSurveyView</name>
    <message>
        <source>Close survey</source>
        <translation>Cerrar encuesta</translation>
    </message>
</context>
<context>
    <name>TovuTextBoxQuestionViewModel</name>
    <message>
        <source>Please enter an answer.</source>
        <translation>Escribe una respuesta.</translation>
    </message>
    <message>
        <source>Type your answer here…</source>
        <translation>Escribe tu respuesta aquí…</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
</context>
<context>
    <name>TovuThankYouViewModel</name>
    <message>
        <source>Thank you!</source>
        <translation>¡Gracias!</translation>
    </message>
    <message>
        <source>Your feedback helps us improve.</source>
        <translation>Tus comentarios nos ayudan a mejorar.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>TovuToasterView</name>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
</context>
</TS>
