// Processor time of everything that takes part in painting here: this program, the window server and the
// display. On a machine where the latter two are not processes of their own only the program's time is
// counted.
#pragma once

#include <string>
#include <vector>

class ProcessorTime {
  public:
    ProcessorTime();

    // Seconds used so far by all of them.
    double Seconds() const;

    // "program, window server, display", as far as they were found.
    const std::string& Names() const { return m_names; }

  private:
    std::vector<std::wstring> m_statFiles;
    std::string m_names = "program";
};
