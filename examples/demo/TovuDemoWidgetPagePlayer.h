#pragma once

#include "TovuDemoPagePlayer.h"

#include <QPointer>

#include <functional>

class QWidget;
class TovuToasterView;

/// Answers the pages of the Qt Widgets sheet: finds each control through its
/// page's accessors and clicks and types into it with events sent to the
/// widget; the screenshots are of the host screen.
class TovuDemoWidgetPagePlayer : public TovuDemoPagePlayer
{
    Q_OBJECT
public:
    TovuDemoWidgetPagePlayer(std::function<TovuToasterView *()> sheet, QWidget *screen, QObject *parent = nullptr);

protected:
    QObject *shownPage() const override;
    QObject *modelOf(QObject *page) const override;
    bool isReady(QObject *page, const Control &control) const override;
    void click(QObject *page, const Control &control) override;
    void focus(QObject *page, const Control &field) override;
    void type(QObject *page, const Control &field, const QString &text) override;
    bool hasSettled(QObject *page) const override;
    QImage screenshot() const override;

private:
    /// `control` on `page`, when it is on screen and takes input.
    QWidget *find(QObject *page, const Control &control) const;
    static QWidget *control(QWidget *page, const Control &control);
    void reveal(QWidget *widget);

    std::function<TovuToasterView *()> m_sheet;
    QPointer<QWidget> m_screen;
};
