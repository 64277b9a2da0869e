#pragma once

#include "TovuDevConfig.h"
#include "TovuDevHttp.h"
#include "TovuFaultRules.h"
#include "TovuResponseStore.h"
#include "TovuSurveyCatalog.h"

#include <string>

/// The backend's routes and the /dev/ routes, as plain functions of a
/// request. Called from many request threads at once: the catalog and the
/// config never change, the store and the fault rules lock themselves.
class TovuDevRouter
{
public:
    /// `baseUrl` ("http://127.0.0.1:PORT") goes into the survey URLs it hands out.
    TovuDevRouter(const TovuSurveyCatalog &catalog, const TovuDevConfig &config, TovuResponseStore &store,
                  TovuFaultRules &faults, std::string baseUrl);

    TovuDevReply handle(const TovuDevRequest &request) const;

private:
    TovuDevReply verify(const TovuDevRequest &request) const;
    TovuDevReply collector(const std::string &id) const;
    TovuDevReply survey(const TovuDevRequest &request, const std::string &id) const;
    TovuDevReply responseCount(const TovuDevRequest &request) const;
    TovuDevReply createResponse(const TovuDevRequest &request, const std::string &surveyId) const;
    TovuDevReply listResponses(const TovuDevRequest &request) const;
    TovuDevReply addFault(const TovuDevRequest &request) const;
    TovuDevReply listFaults() const;
    TovuDevReply clearFaults() const;
    TovuDevReply webPage(const std::string &surveyId) const;
    TovuDevReply index() const;

    bool hasIssuedBearer(const TovuDevRequest &request) const;

    const TovuSurveyCatalog &m_catalog;
    const TovuDevConfig &m_config;
    TovuResponseStore &m_store;
    TovuFaultRules &m_faults;
    std::string m_baseUrl;
};
