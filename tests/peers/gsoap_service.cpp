// A server of another make, made with gSOAP: prints its port, then answers until its input is closed.
#include "peer.nsmap"
#include "soapH.h"

#include <cstdio>
#include <string>
#include <thread>
#include <unistd.h>

int p__describe(soap* context, char* text, bool truth, double number, p__Person* person, p__Numbers* numbers,
                p__describeResponse* response)
{
    std::string all = text ? text : "(nil)";
    all += truth ? "|true|" : "|false|";
    all += std::to_string(number) + '|';
    all +=
        person ? std::string(person->name) + ' ' + std::to_string(person->first_x002dborn_x002e2) : "(nil)";
    for (int k = 0; numbers && k < numbers->__size; ++k) {
        all += '|' + std::to_string(numbers->__ptr[k]);
    }
    response->text = soap_strdup(context, all.c_str());
    return SOAP_OK;
}

int p__twice(soap* context, p__Person* person, p__twiceResponse* response)
{
    response->pair = soap_new_p__Pair(context);
    response->pair->a = person;
    response->pair->b = person;
    return SOAP_OK;
}

int p__fail(soap* context, char* text, p__failResponse*)
{
    return soap_receiver_fault(context, text, "<code xmlns=\"\">7</code>");
}

int main()
{
    soap* const context = soap_new1(SOAP_XML_GRAPH | SOAP_C_UTFSTRING);
    context->bind_flags = SO_REUSEADDR;
    if (!soap_valid_socket(soap_bind(context, "127.0.0.1", 0, 10))) {
        return 1;
    }
    sockaddr_in address{};
    socklen_t size = sizeof address;
    getsockname(context->master, reinterpret_cast<sockaddr*>(&address), &size);
    std::printf("%d\n", ntohs(address.sin_port));
    std::fflush(stdout);
    std::thread([] {
        while (std::getchar() != EOF) {
        }
        _exit(0); // the test has ended
    }).detach();
    while (soap_valid_socket(soap_accept(context))) {
        soap_serve(context);
        soap_destroy(context);
        soap_end(context);
    }
    return 1;
}
