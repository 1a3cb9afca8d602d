// An assistant: the official SDK's client over one of its transports. What it says and hears goes to the transcript.
import assert from 'node:assert/strict';
import { appendFileSync } from 'node:fs';
import { Client } from '@modelcontextprotocol/sdk/client/index.js';
import { SSEClientTransport } from '@modelcontextprotocol/sdk/client/sse.js';
import { StreamableHTTPClientTransport } from '@modelcontextprotocol/sdk/client/streamableHttp.js';

const longest = 400;
const callMs = 120000;

function shortened(text) {
  return text.length > longest ? `${text.slice(0, longest)}... (${text.length} characters)` : text;
}

export const transports = {
  'POST /mcp': (url) => new StreamableHTTPClientTransport(new URL('/mcp', url)),
  'GET /sse': (url) => new SSEClientTransport(new URL('/sse', url)),
};

export class Assistant {
  /** Ids of the requests, in order. */
  ids = [];
  /** What the SDK could not read. */
  errors = [];

  static async connect(transportName, url, transcript) {
    const assistant = new Assistant();
    assistant.#transcript = transcript;
    assistant.transport = transportName;
    const transport = transports[transportName](url);
    assistant.#listenTo(transport);
    assistant.client = new Client({ name: 'end-to-end-test', version: '1.0.0' });
    assistant.client.onerror = (error) => assistant.errors.push(error);
    await assistant.client.connect(transport);
    return assistant;
  }

  /** The tool's answer as an object; a failure is one of the test. */
  async call(tool, args = {}) {
    const { object, isError } = await this.#callTool(tool, args);
    assert.equal(isError, false, `${tool}: ${object.error}`);
    return object;
  }

  /** The text of the failure that has to come. */
  async failure(tool, args = {}) {
    const { object, isError } = await this.#callTool(tool, args);
    assert.equal(isError, true, `${tool} has not failed: ${JSON.stringify(object)}`);
    return object.error;
  }

  async close() {
    await this.client.close();
  }

  #transcript;

  async #callTool(tool, args) {
    const result = await this.client.callTool({ name: tool, arguments: args }, undefined, { timeout: callMs });
    const object = JSON.parse(result.content[0].text);
    assert.equal('error' in object, result.isError, `${tool}: isError and error differ`);
    return { object, isError: result.isError };
  }

  #write(line) {
    appendFileSync(this.#transcript, `${this.transport.split('/')[1]} ${line}\n`);
  }

  #listenTo(transport) {
    const send = transport.send.bind(transport);
    transport.send = (message, ...more) => {
      if ('id' in message) {
        this.ids.push(message.id);
      }
      const { name, arguments: args } = message.params ?? {};
      const called = name ? ` ${name} ${shortened(JSON.stringify(args))}` : '';
      this.#write(`-> ${message.id ?? '-'} ${message.method}${called}`);
      return send(message, ...more);
    };
    transport.onmessage = (message) => {
      const told = message.result?.content?.[0]?.text ?? JSON.stringify(message.result ?? message.error);
      const failed = message.result?.isError || message.error ? 'FAILED ' : '';
      this.#write(`<- ${message.id ?? '-'} ${failed}${shortened(told)}`);
    };
  }
}
