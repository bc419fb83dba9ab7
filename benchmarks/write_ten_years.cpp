// Writes ten years of a planner: write_ten_years FOLDER

#include <cstdio>

#include "planner_files.hpp"

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("Usage: write_ten_years FOLDER\n", stderr);
    return 2;
  }
  benchmarks::writeTenYears(arguments[1]);
}
