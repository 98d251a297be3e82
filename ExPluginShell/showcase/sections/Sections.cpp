#include "Sections.h"

QVector<Section> sections()
{
    return {
        {"Logging", &showLogging},
        {"Storage locations", &showStorage},
        {"Settings", &showSettings},
        {"Application state and process", &showState},
        {"Resource bundles", &showBundles},
        {"Languages", &showLanguages},
        {"Web service", &showWebService},
        {"Asynchronous execution", &showAsync},
        {"Logging", &showLogging},          {"Storage locations", &showStorage},
        {"Settings", &showSettings},        {"Application state and process", &showState},
        {"Files and archives", &showFiles},
    };
}
