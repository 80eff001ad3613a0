#pragma once

namespace vadro {

// The start of the process. A command line that is not empty ends it at once, silently.
int Main(int argc, char* argv[]);

} // namespace vadro
