#pragma once

namespace machine::qt {

/// Paints what waits to be painted during work that keeps the event loop waiting, and nothing else: what the
/// user types and clicks waits for the work's end, and ticks of timers are left out.
void keep_painted();

/// Whether this is going on.
bool is_keeping_painted();

}  // namespace machine::qt
