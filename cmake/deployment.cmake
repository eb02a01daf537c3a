# What a build decides for its installation; core/deployment.h hands it to the program.
set(ZENT_SERVICE_DOMAIN "pondira.example" CACHE STRING "Domain name given to the carrier with every operation")
