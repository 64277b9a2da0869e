#pragma once

#include "TovuDemoPagePlayer.h"

#include <QAccessible>
#include <QPointer>

#include <functional>
#include <optional>

class QQuickItem;
class QQuickWindow;
class TovuQuickSheet;

/// Answers the pages of the Qt Quick sheet as a respondent with a screen reader
/// would: finds each control by its accessible role and name (what the page's
/// view model says it is called) and clicks it (TovuDemoScreenReader); keys
/// typed go to the window, which hands them to the focused field. The
/// screenshots are of the host screen item, cut from the window's picture.
class TovuDemoQuickPagePlayer : public TovuDemoPagePlayer
{
    Q_OBJECT
public:
    TovuDemoQuickPagePlayer(std::function<TovuQuickSheet *()> sheet, QQuickItem *screen, QObject *parent = nullptr);

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
    /// How a screen reader knows a control: its role, its name and, where names
    /// repeat (a multi-NPS page's scores), its description.
    struct Wanted {
        QAccessible::Role role;
        QString name;
        QString description;
    };
    static std::optional<Wanted> wanted(QObject *model, const Control &control);
    /// The node of `control` on `page` when it is on screen and takes input.
    QAccessibleInterface *node(QObject *page, const Control &control) const;
    QQuickWindow *window() const;

    std::function<TovuQuickSheet *()> m_sheet;
    QPointer<QQuickItem> m_screen;
};
