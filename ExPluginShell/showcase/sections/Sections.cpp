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
        {"Asynchronous execution", &showAsync},
        {"Files and archives", &showFiles},
        {"Web service", &showWebService},
        {"Workplace", &showWorkplace},
    };
}
