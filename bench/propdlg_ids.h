#pragma once

#define IDD_BENCH_DIALOG 100
#define IDD_BENCH_PAGE 101
