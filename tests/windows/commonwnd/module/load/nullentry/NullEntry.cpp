// A colour-space library whose entry has nothing to offer.
extern "C" __declspec(dllexport) void* VMQ_GetAPIStuPtr();

void* VMQ_GetAPIStuPtr() {
    return nullptr;
}
