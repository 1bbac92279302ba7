// What the development environment tells the components that are being edited.
#pragma once

#include <string>

class TIToolServices {
public:
    virtual ~TIToolServices() = default;

    // The full name of the open project's file; empty without a project.
    virtual std::string GetProjectName() const = 0;
};

// Set by the environment while it runs; null in applications. Not owned.
inline TIToolServices* ToolServices = nullptr;
