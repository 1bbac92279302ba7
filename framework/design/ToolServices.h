// What the development environment tells packages: the open project, and what they
// may do with it.
#pragma once

#include <string>
#include <vector>

class TIToolServices {
public:
    virtual ~TIToolServices() = default;

    // The full name of the open project's file; empty without a project.
    virtual std::string GetProjectName() const = 0;

    // Writes every changed form of the project, asking where it has to. False when
    // the user does not want that, or a file cannot be written.
    virtual bool SaveProject() { return true; }
    // Reads the project and its forms again, which others have changed on disk.
    virtual void ReloadProject() {}
};

// Set by the environment while it runs; null in applications. Not owned.
extern TIToolServices* ToolServices;
