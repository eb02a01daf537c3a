#include "core/deployment.h"

#ifndef ZENT_SERVICE_DOMAIN
#define ZENT_SERVICE_DOMAIN u"pondira.example"
#endif
#ifndef ZENT_VERSION
#define ZENT_VERSION u"0.0.0"
#endif

namespace core::deployment {

platform::Text service_domain() { return ZENT_SERVICE_DOMAIN; }
platform::Text version() { return ZENT_VERSION; }

}  // namespace core::deployment
