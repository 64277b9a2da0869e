#include <tovukit_io/core/TovuFrontEnds.h>

#include <tovukit_io/core/TovuSurveyPresenter.h>

#include <QMetaObject>
#include <QObject>

#include <algorithm>

namespace {

// A function-local list: front ends add themselves during static
// initialization, in whatever order the linker chose.
std::vector<TovuFrontEnds::FrontEnd> &registry()
{
    static std::vector<TovuFrontEnds::FrontEnd> frontEnds;
    return frontEnds;
}

// Shows each survey through the first front end that accepts its host, and
// keeps talking to that one until the next presentation.
class TovuFrontEndPresenter : public TovuSurveyPresenter
{
public:
    explicit TovuFrontEndPresenter(TovuUrlOpener *urlOpener)
    {
        for (const TovuFrontEnds::FrontEnd &frontEnd : registry())
            m_presenters.push_back(frontEnd.create(urlOpener));
        for (auto &presenter : m_presenters) {
            TovuSurveyPresenter *inner = presenter.get();
            inner->onSkip = [this, inner] {
                if (inner == m_active && onSkip)
                    onSkip();
            };
            inner->onDismissed = [this, inner] {
                if (inner == m_active && onDismissed)
                    onDismissed();
            };
        }
    }

    bool present(const TovuSurvey &survey, QObject *host) override
    {
        for (auto &presenter : m_presenters) {
            if (presenter->canPresent(host)) {
                // A sheet still open in another front end closes first.
                if (m_active && m_active != presenter.get())
                    m_active->dismiss();
                m_active = presenter.get();
                return presenter->present(survey, host);
            }
        }
        return false;
    }

    bool canPresent(QObject *host) const override
    {
        return std::ranges::any_of(m_presenters, [host](const auto &presenter) { return presenter->canPresent(host); });
    }

    void showIntro(const TovuSurveyPage &page, std::function<void()> onStart) override
    {
        if (m_active)
            m_active->showIntro(page, std::move(onStart));
    }

    void showQuestion(TovuPageRequest request) override
    {
        if (m_active)
            m_active->showQuestion(std::move(request));
    }

    void dismiss() override
    {
        if (m_active)
            m_active->dismiss();
    }

    bool isPresenting() const override
    {
        return std::ranges::any_of(m_presenters, [](const auto &presenter) { return presenter->isPresenting(); });
    }

    QObject *sheet() const override { return m_active ? m_active->sheet() : nullptr; }

    void prepare(const TovuSurvey &survey, TovuPageRequest firstQuestion) override
    {
        for (auto &presenter : m_presenters)
            presenter->prepare(survey, firstQuestion);
    }

private:
    std::vector<std::unique_ptr<TovuSurveyPresenter>> m_presenters;
    TovuSurveyPresenter *m_active = nullptr;
};

} // namespace

bool TovuFrontEnds::add(FrontEnd frontEnd)
{
    auto &frontEnds = registry();
    if (std::ranges::none_of(frontEnds, [&](const FrontEnd &known) { return known.name == frontEnd.name; }))
        frontEnds.push_back(frontEnd);
    return true;
}

std::vector<TovuFrontEnds::FrontEnd> TovuFrontEnds::all()
{
    return registry();
}

std::unique_ptr<TovuSurveyPresenter> TovuFrontEnds::createPresenter(TovuUrlOpener *urlOpener)
{
    return std::make_unique<TovuFrontEndPresenter>(urlOpener);
}
