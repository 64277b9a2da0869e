<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>TovuAPISurveyData</name>
    <message>
        <source>Thank You!</source>
        <translation>谢谢！</translation>
    </message>
    <message>
        <source>Your feedback is greatly appreciated.</source>
        <translation>非常感谢您的反馈。</translation>
    </message>
    <message>
        <source>Not likely</source>
        <translation>不太可能</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>非常可能</translation>
    </message>
</context>
<context>
    <name>TovuDropdownQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>请选择一个选项。</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>选择一个选项</translation>
    </message>
</context>
<context>
    <name>TovuIntroViewModel</name>
    <message>
        <source>Let&apos;s get started</source>
        <translation>开始吧</translation>
    </message>
</context>
<context>
    <name>TovuMultiNPSQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>请为所有项目评分。</translation>
    </message>
</context>
<context>
    <name>TovuMultiRatingQuestionViewModel</name>
    <message>
        <source>Please rate all items.</source>
        <translation>请为所有项目评分。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>TovuMultipleChoiceQuestionViewModel</name>
    <message>
        <source>Please select at least one option.</source>
        <translation>请至少选择一个选项。</translation>
    </message>
    <message>
        <source>Select all that apply</source>
        <translation>选择所有适用项</translation>
    </message>
</context>
<context>
    <name>TovuNPSBands</name>
    <message>
        <source>Not likely</source>
        <translation>不太可能</translation>
    </message>
    <message>
        <source>Very likely</source>
        <translation>非常可能</translation>
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
        <translation>第 %1 题，共 %2 题</translation>
    </message>
</context>
<context>
    <name>TovuQuestionViewModel</name>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>下一步 →</translation>
    </message>
</context>
<context>
    <name>TovuRatingQuestionViewModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
    <message>
        <source>%1 of %2 stars</source>
        <translation>%1 星（共 %2 星）</translation>
    </message>
    <message>
        <source>%1 of %2 hearts</source>
        <translation>%1 颗心（共 %2 颗）</translation>
    </message>
    <message>
        <source>%1 of %2 circles</source>
        <translation>%1 个圆（共 %2 个）</translation>
    </message>
    <message>
        <source>%1 of %2 tiles</source>
        <translation>%1 格（共 %2 格）</translation>
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
        <translation>%1 分</translation>
    </message>
</context>
<context>
    <name>TovuScoreRowItem</name>
    <message>
        <source>Score %1</source>
        <translation>%1 分</translation>
    </message>
</context>
<context>
    <name>TovuSingleChoiceQuestionViewModel</name>
    <message>
        <source>Please select an option.</source>
        <translation>请选择一个选项。</translation>
    </message>
</context>
<context>
    <name>TovuSurveyContent</name>
    <message>
        <source>Close survey</source>
        <translation>关闭问卷</translation>
    </message>
</context>
<context>
    <name>TovuSurveySheet</name>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
</context>
<context>
    <name>TovuSurveyView</name>
    <message>
        <source>Close survey</source>
        <translation>关闭问卷</translation>
    </message>
</context>
<context>
    <name>TovuTextBoxQuestionViewModel</name>
    <message>
        <source>Please enter an answer.</source>
        <translation>请输入答案。</translation>
    </message>
    <message>
        <source>Type your answer here…</source>
        <translation>在此输入您的答案…</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>电子邮件</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>评论</translation>
    </message>
</context>
<context>
    <name>TovuThankYouViewModel</name>
    <message>
        <source>Thank you!</source>
        <translation>谢谢！</translation>
    </message>
    <message>
        <source>Your feedback helps us improve.</source>
        <translation>您的反馈有助于我们改进。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>TovuToasterView</name>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
</context>
</TS>
