#include "TovuWebPage.h"

#include <string>
#include <vector>

namespace {

constexpr std::string_view style = R"(<style>
body{font-family:system-ui,sans-serif;margin:0;padding:16px;color:#1c1c1e;background:#fff;max-width:640px}
h1{font-size:1.3em}fieldset{border:1px solid #d1d1d6;border-radius:10px;margin:0 0 16px;padding:12px}
legend{font-weight:600;padding:0 4px}.hint{color:#6c6c70;margin:4px 0 8px}
label{display:block;margin:4px 0}.scale label{display:inline-block;margin:4px 6px 4px 0}
.ends{display:flex;justify-content:space-between;color:#6c6c70;font-size:.85em}
input[type=text],textarea,select{width:100%;box-sizing:border-box;font:inherit;padding:6px}
button{font:inherit;padding:10px 20px;border:0;border-radius:8px;background:#007aff;color:#fff}
</style>)";

// Posts to the embedding view when there is one; a plain browser just shows the page.
constexpr std::string_view script = R"(<script>
(function () {
  function post(message) {
    var handlers = window.webkit && window.webkit.messageHandlers;
    if (handlers && handlers.surveyResponse) handlers.surveyResponse.postMessage(message);
  }
  window.addEventListener('load', function () { post({type: 'surveyLoaded'}); });
  var form = document.getElementById('survey');
  if (form) form.addEventListener('submit', function (event) {
    event.preventDefault();
    post({type: 'surveyCompleted'});
    form.hidden = true;
    document.getElementById('thanks').hidden = false;
  });
})();
</script>)";

std::string page(std::string_view title, const std::string &body)
{
    std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>";
    html += TovuWebPage::escape(title);
    html += "</title>\n";
    html += style;
    html += "\n</head>\n<body>\n";
    html += body;
    html += script;
    html += "\n</body>\n</html>\n";
    return html;
}

std::vector<TovuChoice> scale(int from, int to)
{
    std::vector<TovuChoice> choices;
    for (int value = from; value <= to; ++value)
        choices.push_back({std::to_string(value), std::to_string(value), std::to_string(value)});
    return choices;
}

// Columns when the document gives them, else the usual scale.
std::vector<TovuChoice> scaleChoices(const TovuQuestion &question, int from, int to)
{
    if (question.columns && !question.columns->empty())
        return *question.columns;
    return scale(from, to);
}

void appendChoices(std::string &html, std::string_view inputType, const std::string &name,
                   const std::vector<TovuChoice> &choices, bool required)
{
    bool first = true;
    for (const TovuChoice &choice : choices) {
        html += "<label><input type=\"";
        html += inputType;
        html += "\" name=\"" + TovuWebPage::escape(name) + "\" value=\"" + TovuWebPage::escape(choice.id) + "\"";
        if (required && first)
            html += " required";
        html += "> " + TovuWebPage::escape(choice.text) + "</label>\n";
        first = false;
    }
}

void appendScale(std::string &html, const std::string &name, const std::vector<TovuChoice> &choices, bool required,
                 const std::optional<TovuNPSLabels> &labels)
{
    html += "<div class=\"scale\">\n";
    appendChoices(html, "radio", name, choices, required);
    html += "</div>\n";
    if (labels) {
        html += "<div class=\"ends\"><span>" + TovuWebPage::escape(labels->lower) + "</span><span>"
            + TovuWebPage::escape(labels->upper) + "</span></div>\n";
    }
}

void appendMatrix(std::string &html, const TovuQuestion &question, const std::vector<TovuChoice> &columns)
{
    for (const TovuChoice &row : question.options.value_or(std::vector<TovuChoice>{})) {
        html += "<p class=\"hint\">" + TovuWebPage::escape(row.text) + "</p>\n";
        appendScale(html, question.id + "/" + row.id, columns, question.isRequired, std::nullopt);
    }
}

void appendQuestion(std::string &html, const TovuQuestion &question)
{
    const std::string name = question.id;
    const std::vector<TovuChoice> options = question.options.value_or(std::vector<TovuChoice>{});
    html += "<fieldset>\n<legend>" + TovuWebPage::escape(question.title);
    if (question.isRequired)
        html += " *";
    html += "</legend>\n";
    if (question.subtitle)
        html += "<p class=\"hint\">" + TovuWebPage::escape(*question.subtitle) + "</p>\n";
    const std::string placeholder
        = question.placeholder ? " placeholder=\"" + TovuWebPage::escape(*question.placeholder) + "\"" : "";
    const std::string required = question.isRequired ? " required" : "";

    switch (question.type) {
    case TovuQuestionType::singleChoice:
        appendChoices(html, "radio", name, options, question.isRequired);
        break;
    case TovuQuestionType::multipleChoice:
        appendChoices(html, "checkbox", name, options, false);
        break;
    case TovuQuestionType::dropdown:
        html += "<select name=\"" + TovuWebPage::escape(name) + "\"" + required + ">\n<option value=\"\">–</option>\n";
        for (const TovuChoice &choice : options)
            html += "<option value=\"" + TovuWebPage::escape(choice.id) + "\">" + TovuWebPage::escape(choice.text)
                + "</option>\n";
        html += "</select>\n";
        break;
    case TovuQuestionType::singleTextBox:
        html += "<input type=\"text\" name=\"" + TovuWebPage::escape(name) + "\"" + placeholder + required + ">\n";
        break;
    case TovuQuestionType::multipleTextBox:
        html += "<textarea rows=\"4\" name=\"" + TovuWebPage::escape(name) + "\"" + placeholder + required
            + "></textarea>\n";
        break;
    case TovuQuestionType::nps:
        appendScale(html, name, scaleChoices(question, 0, 10), question.isRequired, question.npsLabels);
        break;
    case TovuQuestionType::multiNps:
        appendMatrix(html, question, scaleChoices(question, 0, 10));
        break;
    case TovuQuestionType::rating:
        appendScale(html, name, scaleChoices(question, 1, 5), question.isRequired, std::nullopt);
        break;
    case TovuQuestionType::multiRating:
        appendMatrix(html, question, scaleChoices(question, 1, 5));
        break;
    case TovuQuestionType::thankYou:
        break;
    }
    html += "</fieldset>\n";
}

bool isWebAddress(std::string_view url)
{
    return url.starts_with("http://") || url.starts_with("https://");
}

} // namespace

std::string TovuWebPage::render(const TovuSurvey &survey)
{
    std::string body = "<h1>" + escape(survey.name) + "</h1>\n";
    if (survey.introPage && survey.introPage->enabled && survey.introPage->content)
        body += "<p class=\"intro\">" + escape(*survey.introPage->content) + "</p>\n";

    body += "<form id=\"survey\">\n";
    const TovuQuestion *closing = nullptr;
    for (const TovuQuestion &question : survey.questions) {
        if (question.type == TovuQuestionType::thankYou)
            closing = &question;
        else
            appendQuestion(body, question);
    }
    body += "<button type=\"submit\">Submit</button>\n</form>\n";

    body += "<section id=\"thanks\" hidden>\n";
    body += "<h2>" + escape(closing ? closing->title : std::string("Thank You!")) + "</h2>\n";
    if (closing && closing->subtitle)
        body += "<p>" + escape(*closing->subtitle) + "</p>\n";
    if (closing && closing->redirectURL && isWebAddress(*closing->redirectURL))
        body += "<p><a href=\"" + escape(*closing->redirectURL) + "\">Continue</a></p>\n";
    body += "</section>\n";
    // A link out of the survey, as hosted pages have: embedding views open it elsewhere.
    body += "<footer class=\"hint\"><a id=\"powered-by\" href=\"https://tovu.example/\">Powered by Tovu</a></footer>\n";
    return page(survey.name, body);
}

std::string TovuWebPage::notFound(std::string_view surveyId)
{
    return page("Survey not found",
                "<h1>Survey not found</h1>\n<p>There is no survey \"" + escape(surveyId) + "\".</p>\n");
}

std::string TovuWebPage::unreadable(std::string_view surveyId, std::string_view reason)
{
    return page("Survey cannot be shown",
                "<h1>Survey cannot be shown</h1>\n<p>The document of survey \"" + escape(surveyId)
                    + "\" does not decode: " + escape(reason) + "</p>\n");
}

std::string TovuWebPage::escape(std::string_view text)
{
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\'':
            escaped += "&#39;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}
