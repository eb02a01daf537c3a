/// A library that loads but has none of the carrier's exports.
extern "C" int none_of_the_exports() { return 0; }
