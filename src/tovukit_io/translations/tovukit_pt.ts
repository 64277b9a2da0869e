<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>TovuAPISurveyData</name>
    <message>
        <source>Thank You!</source>
        <translation>Obrigado!</translation>
    </message>
    <message>
        <source>Your feedback is greatly appreciated.</source>
        <translation>Agradecemos muito sua opinião.</translation>
    </message>
    <message>
        <source>Not likely</source>
        <translation>Pouco provável</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>Muito provável</translation>
    </message>
</context>
<context>
    <name>TovuDropdownQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>Selecione uma opção.</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>Selecione uma opção</translation>
    </message>
</context>
<context>
    <name>TovuIntroViewModel</name>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Vamos começar</translation>
    </message>
</context>
<context>
    <name>TovuMultiNPSQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>Avalie todos os itens.</translation>
    </message>
</context>
<context>
    <name>TovuMultiRatingQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>Avalie todos os itens.</translation>
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
        <translation>Selecione pelo menos uma opção.</translation>
    </message>
    <message>
        <source>Select all that apply</source>
        <translation>Selecione todas as opções aplicáveis</translation>
    </message>
</context>
<context>
    <name>TovuNPSBands</name>
    <message>
        <source>Not likely</source>
        <translation>Pouco provável</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>Muito provável</translation>
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
        <translation>Pergunta %1 de %2</translation>
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
        <translation>Próximo →</translation>
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
        <translation>%1 de %2 estrelas</translation>
    </message>
    <message>
        <source>%1 of %2 hearts</source>
        <translation>%1 de %2 corações</translation>
    </message>
    <message>
        <source>%1 of %2 circles</source>
        <translation>%1 de %2 círculos</translation>
    </message>
    <message>
        <source>%1 of %2 tiles</source>
        <translation>%1 de %2 quadrados</translation>
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
        <translation>Nota %1</translation>
    </message>
</context>
<context>
    <name>TovuScoreRowItem</name>
    <message>
        <source>Score %1</source>
        <translation>Nota %1</translation>
    </message>
</context>
<context>
    <name>TovuSingleChoiceQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>Selecione uma opção.</translation>
    </message>
</context>
<context>
    <name>TovuSurveyContent</name>
    <message>
        <source>Close survey</source>
        <translation>Fechar pesquisa</translation>
    </message>
</context>
<context>
    <name>TovuSurveySheet</name>
    <message>
        <source>Skip</source>
        <translation>Pular</translation>
    </message>
</context>
<context>
    <name>TovuSurveyView</name>
    <message>
        <source>Close survey</source>
        <translation>Fechar pesquisa</translation>
    </message>
</context>
<context>
    <name>TovuTextBoxQuestionViewModel</name>
    <message>
        <source>Please enter an answer.</source>
        <translation>Digite uma resposta.</translation>
    </message>
    <message>
        <source>Type your answer here…</source>
        <translation>Digite sua resposta aqui…</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentário</translation>
    </message>
</context>
<context>
    <name>TovuThankYouViewModel</name>
    <message>
        <source>Thank you!</source>
        <translation>Obrigado!</translation>
    </message>
    <message>
        <source>Your feedback helps us improve.</source>
        <translation>Sua opinião nos ajuda a melhorar.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>TovuToasterView</name>
    <message>
        <source>Skip</source>
        <translation>Pular</translation>
    </message>
</context>
</TS>
