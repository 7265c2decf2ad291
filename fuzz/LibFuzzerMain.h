#pragma once

#include "FuzzTargets.h"
#include "HeapLimit.h"

#include "IsolatedSettings.h"

#include <QGuiApplication>

#include <cstddef>
#include <cstdint>

// The entry points that libFuzzer's main function calls. The settings go, with their folder, at the
// regular end of the process, after the application object.
#define ORLIMO_FUZZ_MAIN(target)                                                                   \
    extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)                                   \
    {                                                                                              \
        Fuzz::CountHeap();                                                                         \
        static const Test::IsolatedSettings settings;                                              \
        static const QGuiApplication application(*argc, *argv);                                    \
        return 0;                                                                                  \
    }                                                                                              \
    extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)              \
    {                                                                                              \
        const Fuzz::HeapLimit heapLimit;                                                           \
        target(QByteArrayView(data, static_cast<qsizetype>(size)));                                \
        return 0;                                                                                  \
    }
