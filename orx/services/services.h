// System services: thin wrappers over the operating system with the same contracts on
// Windows and Linux: fault translation, threads and locks, owned handles, diagnostics,
// a stopwatch and version information; files and directories, dates and times, a
// profiler and the start of other programs.
//
//     std::wstring text = ORX::version();         // "2017.0"
//     ORX::CTimer timer;
//     try {
//         COrxErrorHandler guard;                 // faults become `unsigned int` codes
//         work();
//     } catch (unsigned int code) { ... }
//     double const seconds = timer.stop();
#ifndef ORX_SERVICES_SERVICES_H
#define ORX_SERVICES_SERVICES_H

#include "orx/services/com.h"
#include "orx/services/date_time.h"
#include "orx/services/diagnostics.h"
#include "orx/services/error_handler.h"
#include "orx/services/files.h"
#include "orx/services/handles.h"
#include "orx/services/perf_timer.h"
#include "orx/services/process.h"
#include "orx/services/registry.h"
#include "orx/services/threads.h"
#include "orx/services/timer.h"
#include "orx/services/version.h"
#include "orx/services/version_info.h"
#include "orx/services/work_dir.h"

#endif  // ORX_SERVICES_SERVICES_H
