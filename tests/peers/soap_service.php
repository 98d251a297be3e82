<?php
// The service that the peer tests call, started by them with PHP's own web server. RPC/encoded, without a description.
class Service
{
    // What the service understood of its arguments: type and value of each.
    public function describe(...$arguments)
    {
        $texts = array_map(fn($a) => gettype($a) . ' ' . json_encode($a, JSON_UNESCAPED_UNICODE | JSON_UNESCAPED_SLASHES), $arguments);
        return implode('|', $texts);
    }

    public function echo($value)
    {
        return $value;
    }

    public function shared()
    {
        $person = (object)['name' => 'once'];
        return [$person, $person];
    }

    public function fail($text)
    {
        throw new SoapFault('Server', $text, null, (object)['code' => 7, 'where' => (object)['line' => 'a & b']], 'failDetail');
    }
}

$server = new SoapServer(null, ['uri' => 'urn:example:peer', 'encoding' => 'UTF-8']);
$server->setClass('Service');
$server->handle();
