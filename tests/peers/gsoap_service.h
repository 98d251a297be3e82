// The service that the peer tests call, in the dialect of soapcpp2. RPC/encoded.
//gsoap p service name: peer
//gsoap p service namespace: urn:example:peer
//gsoap p service style: rpc
//gsoap p service encoding: encoded
//gsoap p schema namespace: urn:example:peer

struct p__Person {
    char* name;
    int first_x002dborn_x002e2;
};

struct p__Pair {
    struct p__Person* a;
    struct p__Person* b;
};

struct p__Numbers {
    int* __ptr;
    int __size;
};

struct p__describeResponse {
    char* text;
};

int p__describe(char* text, bool truth, double number, struct p__Person* person, struct p__Numbers* numbers,
                struct p__describeResponse* response);

struct p__twiceResponse {
    struct p__Pair* pair;
};

// The same person twice: written once, and referred to.
int p__twice(struct p__Person* person, struct p__twiceResponse* response);

struct p__failResponse {
};

int p__fail(char* text, struct p__failResponse* response);
