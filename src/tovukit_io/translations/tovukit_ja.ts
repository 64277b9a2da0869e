<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>TovuAPISurveyData</name>
    <message>
        <source>Thank You!</source>
        <translation>ありがとうございました！</translation>
    </message>
    <message>
        <source>Your feedback is greatly appreciated.</source>
        <translation>ご意見をお寄せいただき、誠にありがとうございます。</translation>
    </message>
    <message>
        <source>Not likely</source>
        <translation>可能性は低い</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>可能性は非常に高い</translation>
    </message>
</context>
<context>
    <name>TovuDropdownQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>選択肢を選んでください。</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>選択してください</translation>
    </message>
</context>
<context>
    <name>TovuIntroViewModel</name>
    <message>
        <source>Let&apos;s get started</source>
        <translation>はじめる</translation>
    </message>
</context>
<context>
    <name>TovuMultiNPSQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>すべての項目を評価してください。</translation>
    </message>
</context>
<context>
    <name>TovuMultiRatingQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>すべての項目を評価してください。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>TovuMultipleChoiceQuestionViewModel</name>
    <message>
        <source>Please select at least one option.</source>
        <translation>少なくとも1つ選んでください。</translation>
    </message>
    <message>
        <source>Select all that apply</source>
        <translation>当てはまるものをすべて選択</translation>
    </message>
</context>
<context>
    <name>TovuNPSBands</name>
    <message>
        <source>Not likely</source>
        <translation>可能性は低い</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>可能性は非常に高い</translation>
    </message>
</context>
<context>
    <name>TovuProgressViewModel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Question %1 of %2</source>
        <translation>質問 %1/%2</translation>
    </message>
</context>
<context>
    <name>TovuQuestionViewModel</name>
    <message>
        <source>Submit</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>次へ →</translation>
    </message>
</context>
<context>
    <name>TovuRatingQuestionViewModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>%1 of %2 stars</source>
        <translation>星 %2 個中 %1 個</translation>
    </message>
    <message>
        <source>%1 of %2 hearts</source>
        <translation>ハート %2 個中 %1 個</translation>
    </message>
    <message>
        <source>%1 of %2 circles</source>
        <translation>円 %2 個中 %1 個</translation>
    </message>
    <message>
        <source>%1 of %2 tiles</source>
        <translation>タイル %2 個中 %1 個</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>TovuScaleParts</name>
    <message>
        <source>Score %1</source>
        <translation>スコア %1</translation>
    </message>
</context>
<context>
    <name>TovuScoreRowItem</name>
    <message>
        <source>Score %1</source>
        <translation>スコア %1</translation>
    </message>
</context>
<context>
    <name>TovuSingleChoiceQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>選択肢を選んでください。</translation>
    </message>
</context>
<context>
    <name>TovuSurveyContent</name>
    <message>
        <source>Close survey</source>
        <translation>アンケートを閉じる</translation>
    </message>
</context>
<context>
    <name>TovuSurveySheet</name>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
</context>
<context>
    <name>TovuSurveyView</name>
    <message>
        <source>Close survey</source>
        <translation>アンケートを閉じる</translation>
    </message>
</context>
<context>
    <name>TovuTextBoxQuestionViewModel</name>
    <message>
        <source>Please enter an answer.</source>
        <translation>回答を入力してください。</translation>
    </message>
    <message>
        <source>Type your answer here…</source>
        <translation>ここに回答を入力…</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
</context>
<context>
    <name>TovuThankYouViewModel</name>
    <message>
        <source>Thank you!</source>
        <translation>ありがとうございました！</translation>
    </message>
    <message>
        <source>Your feedback helps us improve.</source>
        <translation>いただいたご意見はサービスの改善に役立てます。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>TovuToasterView</name>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
</context>
</TS>
