#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>

#include <QColor>
#include <QObject>
#include <QString>

#include <optional>

class TovuUrlOpener;

/// What the closing page shows and does: its title and the line under it (the
/// question's, else the defaults), the green of its check mark, and the redirect. When
/// the question carries an http or https address, scheduleRedirect() opens it
/// TovuPageMetrics::redirectDelaySeconds later, even if the page and the sheet are gone
/// by then; any other address is never opened.
///
/// \code
/// TovuThankYouViewModel model(question, &opener);
/// model.scheduleRedirect(); // once the page is shown
/// // QML: Text { text: thankYou.title; textFormat: Text.PlainText }
/// \endcode
class TovuThankYouViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT)
    /// What a screen reader says for the check mark.
    Q_PROPERTY(QString iconAccessibleName READ iconAccessibleName CONSTANT)
    /// The faint disc behind the check mark.
    Q_PROPERTY(QColor discColor READ discColor CONSTANT)
    Q_PROPERTY(QColor iconColor READ iconColor CONSTANT)

public:
    /// `opener` opens the redirect (the default opener when null, looked up when the
    /// redirect fires); a given opener must outlive the delay.
    explicit TovuThankYouViewModel(std::optional<TovuQuestion> question, TovuUrlOpener *opener = nullptr,
                                   QObject *parent = nullptr);

    const std::optional<TovuQuestion> &question() const { return m_question; }
    QString title() const;
    QString subtitle() const;
    QString iconAccessibleName() const;
    QColor discColor() const;
    QColor iconColor() const;

    /// TovuPageMetrics::redirectDelaySeconds in whole milliseconds, as the timer takes it.
    static constexpr int redirectDelayMs = static_cast<int>(TovuPageMetrics::redirectDelaySeconds * 1000 + 0.5);

    /// Starts the delay before the redirect, once: later calls do nothing. Nothing
    /// happens for a question without an address or with one that is not http or https.
    Q_INVOKABLE void scheduleRedirect();

private:
    std::optional<TovuQuestion> m_question;
    TovuUrlOpener *m_opener = nullptr;
    bool m_redirectScheduled = false;
};
