#pragma once

#include <memory>
#include <string_view>
#include <vector>

class QObject;
class TovuSurveyPresenter;
class TovuUrlOpener;

/// The front ends linked into the application, each able to put a survey on
/// some kind of host: the Qt Widgets sheet over a QWidget, the Qt Quick sheet
/// over a QQuickWindow or QQuickItem. The manager knows none of them; it asks
/// this list which one can cover the host it was given.
///
/// A front end adds itself from a static initializer in an object file that
/// its CMake target links into every executable using it, so linking the
/// target is all a host does:
///
/// \code
/// const bool added = TovuFrontEnds::add({"quick", [](TovuUrlOpener *opener) {
///     return std::make_unique<TovuQuickPresenter>(opener);
/// }});
/// \endcode
class TovuFrontEnds
{
public:
    using Factory = std::unique_ptr<TovuSurveyPresenter> (*)(TovuUrlOpener *urlOpener);

    struct FrontEnd {
        std::string_view name; ///< "widgets", "quick", …; shown in console lines
        Factory create;
    };

    /// Adds `frontEnd` once (by name); safe during static initialization.
    /// Returns true so it can initialize a static constant.
    static bool add(FrontEnd frontEnd);
    /// Every front end added so far, in the order they were added.
    static std::vector<FrontEnd> all();
    /// A presenter over every front end added so far: it shows a survey through the
    /// first one whose presenter accepts the host. `urlOpener` may be null.
    static std::unique_ptr<TovuSurveyPresenter> createPresenter(TovuUrlOpener *urlOpener);

    TovuFrontEnds() = delete;
};
