# What a build decides for its installation; core/deployment.h carries the values into the program.
set(ZENT_SERVICE_DOMAIN "pondira.example" CACHE STRING "Domain name given to the carrier with every operation")
set(ZENT_SERVICE_SITE "http://www.pondira.example" CACHE STRING "The service's web site")
set(ZENT_DOCUMENT_SITE "http://www.cardvale.example/download" CACHE STRING "Where the application forms lie")
set(ZENT_CONTACT_TELEPHONE "전화 02-000-0000" CACHE STRING "Contact line of the reseller")
set(ZENT_CONTACT_FAX "팩스 02-000-0001" CACHE STRING "Contact line of the reseller")
