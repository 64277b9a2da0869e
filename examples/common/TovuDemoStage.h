#pragma once

#include "TovuDemoOptions.h"
#include "TovuDemoSession.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <memory>

class QObject;
class TovuDemoActivity;
class TovuDemoPagePlayer;

/// A demo's window as its autoplay sees it, whichever toolkit draws it: the
/// host screen surveys appear over, its own page player, its log and stored
/// responses, and a picture of the whole.
class TovuDemoStage
{
public:
    virtual ~TovuDemoStage() = default;

    /// Shows the window: at its own size for pictures, or fitted to the screen for a person.
    virtual void open(bool fitToScreen) = 0;
    /// Sets the look of the app and of the surveys, and shows it in the controls;
    /// `primaryColor` is the one offered as a theme (invalid: the one shown so far).
    virtual void setLook(bool dark, TovuDemoOptions::Theme theme, const QColor &primaryColor) = 0;
    /// Configures the session and shows it in the controls and the log.
    virtual void configure(TovuDemoSession::Target target, const QString &id) = 0;
    /// What the survey sheet covers: the host app's screen.
    virtual QObject *host() const = 0;
    /// A player that answers the pages of this toolkit's sheet.
    virtual std::unique_ptr<TovuDemoPagePlayer> createPagePlayer() = 0;
    virtual TovuDemoActivity &activity() = 0;
    /// Brings the list of stored responses to the front.
    virtual void showStoredResponses() = 0;
    /// The whole window as it looks now.
    virtual QImage picture() = 0;
};
