// What a loop or a dialog makes of temporary objects, and their removal when it ends.
#pragma once

// The temporary objects of all kinds that the calling thread has made since this object was made. Callers
// further out may hold older ones.
class TemporaryScope {
  public:
    TemporaryScope();
    void Remove() const;

  private:
    unsigned long long m_firstWindow;
    unsigned long long m_firstOther;
};

// Removes the calling thread's temporary objects of all kinds.
void AfxDeleteTempObjects();
