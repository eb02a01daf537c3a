#include "core/deployment.h"

// A compiler alone, without the build, gets these.
#ifndef ZENT_SERVICE_DOMAIN
#define ZENT_SERVICE_DOMAIN u"pondira.example"
#define ZENT_SERVICE_SITE u"http://www.pondira.example"
#define ZENT_DOCUMENTS_SITE u"http://www.cardvale.example/download"
#define ZENT_CONTACT_PHONE u"전화 02-000-0000"
#define ZENT_CONTACT_FAX u"팩스 02-000-0001"
#define ZENT_VERSION u"0.0.0"
#endif

namespace core::deployment {

platform::Text service_domain() { return ZENT_SERVICE_DOMAIN; }
platform::Text service_site() { return ZENT_SERVICE_SITE; }
platform::Text documents_site() { return ZENT_DOCUMENTS_SITE; }
platform::Text contact_phone() { return ZENT_CONTACT_PHONE; }
platform::Text contact_fax() { return ZENT_CONTACT_FAX; }
platform::Text version() { return ZENT_VERSION; }

}  // namespace core::deployment
