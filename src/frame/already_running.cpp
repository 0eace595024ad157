// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/already_running.h"

#include <algorithm>

int countRunning(const std::vector<sys::Process>& processes, const sys::Process& self)
{
    const auto counts = [&self](const sys::Process& process) {
        return process.name.contains(QLatin1String("Kestrill"), Qt::CaseSensitive)
            && !sys::isYoungerTwin(process, self);
    };
    return static_cast<int>(std::count_if(processes.begin(), processes.end(), counts));
}
