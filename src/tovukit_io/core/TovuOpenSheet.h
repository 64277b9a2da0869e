#pragma once

#include <tovukit_io/core/TovuSurveyPresenter.h>

#include <QObject>
#include <QPointer>

#include <memory>

/// The sheet a presenter has open, whichever front end drew it: a QObject with
/// `dismiss()`, `isDismissing()` and an `onSkip` member. It tells the presenter's
/// `onSkip` and `onDismissed` for that sheet; a sheet replaced by a newer one
/// closes quietly. Sheets belong to their hosts and may outlive the presenter:
/// the end of this object cuts every connection back to it.
template<class Sheet>
class TovuOpenSheet
{
public:
    explicit TovuOpenSheet(TovuSurveyPresenter &presenter)
        : m_presenter(presenter)
        , m_context(std::make_unique<QObject>())
    { }

    /// Closes the open sheet, if any, and keeps `sheet` as the open one.
    void replaceWith(Sheet *sheet)
    {
        if (m_sheet)
            m_sheet->dismiss();
        sheet->onSkip = [this, alive = QPointer<QObject>(m_context.get())] {
            if (alive && m_presenter.onSkip)
                m_presenter.onSkip();
        };
        QObject::connect(sheet, &QObject::destroyed, m_context.get(), [this, sheet] {
            // An object tells of its end before QPointers to it are cleared: compare addresses.
            if ((!m_sheet || m_sheet.data() == sheet) && m_presenter.onDismissed)
                m_presenter.onDismissed();
        });
        m_sheet = sheet;
    }

    void dismiss()
    {
        if (m_sheet)
            m_sheet->dismiss();
    }
    bool isPresenting() const { return m_sheet && !m_sheet->isDismissing(); }
    Sheet *get() const { return m_sheet; }
    /// For work the presenter does later: it ends with this object.
    QObject *context() const { return m_context.get(); }

private:
    TovuSurveyPresenter &m_presenter;
    std::unique_ptr<QObject> m_context;
    QPointer<Sheet> m_sheet;
};
