// A colour-space library without the entry that it is asked for.
extern "C" __declspec(dllexport) void* VMQ_SomethingElse();

void* VMQ_SomethingElse() {
    return nullptr;
}
