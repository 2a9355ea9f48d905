// Makes one mistake on purpose; its name is the argument. Exit code 0 when nobody noticed.
#include <windows.h>

#include <climits>
#include <cstring>
#include <vector>

namespace {

volatile int g_number = INT_MAX;
volatile int g_shift = 40;
volatile int g_index = 8;

void overflow() {
    g_number = g_number + 1;
}

void shift() {
    g_number = 1 << g_shift;
}

void index() {
    int numbers[8] = {};
    g_number = numbers[g_index];
}

void writePastEnd() {
    auto* block = new volatile char[24];
    block[24] = 1;
    delete[] block;
}

void readPastEnd() {
    const std::vector<int> numbers(8);
    g_number = *(numbers.data() + g_index);
}

void useAfterDelete() {
    auto* block = new volatile char[24];
    delete[] block;
    block[0] = 1;
}

void deleteTwice() {
    auto* block = new char[24];
    char* volatile same = block;
    delete[] block;
    delete[] same;
}

void nothing() {
    delete new int(3);
}

const struct {
    const char* name;
    void (*make)();
} kMistakes[] = {
    {"overflow", overflow},
    {"shift", shift},
    {"index", index},
    {"write-past-end", writePastEnd},
    {"read-past-end", readPastEnd},
    {"use-after-delete", useAfterDelete},
    {"delete-twice", deleteTwice},
    {"nothing", nothing},
};

} // namespace

int main(int argc, char** argv) {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    for (const auto& it : kMistakes) {
        if (argc == 2 && std::strcmp(argv[1], it.name) == 0) {
            it.make();
            return 0;
        }
    }
    return 1;
}
