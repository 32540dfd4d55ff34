#pragma once

/// Prepares the standard streams and what the system tells of them. Once, before anything else.
void prepareStreams();
