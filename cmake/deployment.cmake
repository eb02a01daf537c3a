# The settings of a deployment; core/deployment.h passes them to the program.
set(ZENT_SERVICE_DOMAIN "pondira.example" CACHE STRING "Domain name given to the carrier with every operation")
set(ZENT_SERVICE_SITE "http://www.pondira.example" CACHE STRING "Web site with the service's pages, without a slash at its end")
set(ZENT_DOCUMENTS_SITE "http://www.cardvale.example/download" CACHE STRING "Folder of the maker's web site with the application documents")
# The maker's own page is on the site that has the documents.
string(REGEX MATCH "^[a-z]+://[^/]*" ZENT_MAKER_SITE "${ZENT_DOCUMENTS_SITE}")
set(ZENT_CONTACT_PHONE "전화 02-000-0000" CACHE STRING "Whom new members call")
set(ZENT_CONTACT_FAX "팩스 02-000-0001" CACHE STRING "Where they send their application")
