#include "toolbars/catalogs/Catalogs.h"

namespace tagsmith::toolbars {
namespace {

constexpr std::string_view kServerVariables[] = {
    "LAST_MODIFIED",     "PATH_INFO",    "PATH_TRANSLATED",
    "QUERY_STRING",      "DATE_GMT",     "DATE_LOCAL",
    "GATEWAY_INTERFACE", "HTTP_ACCEPT",  "HTTP_ACCEPT_LANGUAGE",
    "HTTP_USER_AGENT",   "HTTP_REFERER", "HTTP_UA_PIXELS",
    "HTTP_UA_COLOR",     "HTTP_UA_OS",
};

constexpr std::string_view kObjectCalls[] = {
    "Server.CreateObject()", "Request.Cookies()",  "Request.QueryString()", "Request.Form()",
    "Application.Lock",      "Application.UnLock", "Session.TimeOut",       "Session.Abandon",
    "Session.SessionID",     "Response.Write()",   "Response.Redirect",
};

constexpr CatalogFamily kFamilies[] = {
    {"server variables", kServerVariables},
    {"object calls", kObjectCalls},
};

}  // namespace

Catalog AspCatalog() { return kFamilies; }

}  // namespace tagsmith::toolbars
