// A studio and a stand-in controller for a test: programs of the build, in folders of their own, ended with the test.
import { spawn } from 'node:child_process';
import { mkdirSync, openSync, readFileSync, rmSync } from 'node:fs';
import net from 'node:net';
import path from 'node:path';
import { setTimeout as sleep } from 'node:timers/promises';

const startMs = 60000;
const host = '127.0.0.1';

async function until(what, isTrue) {
  const end = Date.now() + startMs;
  for (;;) {
    const value = await isTrue();
    if (value) {
      return value;
    }
    if (Date.now() > end) {
      throw new Error(`${what} is not there after ${startMs} ms`);
    }
    await sleep(50);
  }
}

function listens(port) {
  return new Promise((resolve) => {
    const socket = net.connect(port, host, () => {
      socket.destroy();
      resolve(true);
    });
    socket.on('error', () => resolve(false));
  });
}

async function freePort() {
  const server = net.createServer().listen(0, host);
  await new Promise((resolve) => server.once('listening', resolve));
  const { port } = server.address();
  await new Promise((resolve) => server.close(resolve));
  return port;
}

export class Studio {
  #children = [];

  /** Empties the folder; everything that the programs write goes there. */
  static async start(studioProgram, standinProgram, folder) {
    const studio = new Studio();
    studio.folder = folder;
    rmSync(folder, { recursive: true, force: true });
    process.on('exit', () => studio.stop());
    for (const signal of ['SIGINT', 'SIGTERM']) {
      process.on(signal, () => process.exit(1));
    }
    await studio.#startStandin(standinProgram);
    await studio.#startStudio(studioProgram);
    return studio;
  }

  /** Where the stand-in listens, as a connection names it. */
  get controller() {
    return `${host}:${this.controllerPort}`;
  }

  get url() {
    return `http://${host}:${this.port}`;
  }

  projectPath(name) {
    return path.join(this.folder, 'projects', name);
  }

  stop() {
    for (const child of this.#children.splice(0)) {
      child.kill();
    }
  }

  async #startStandin(program) {
    const log = this.#spawn(program, 'standin', ['--port', '0', '--no-discovery', '--restart-time', '50']);
    this.controllerPort = await until('the stand-in', () => readFileSync(log, 'utf8').match(/Port (\d+)/)?.[1]);
  }

  async #startStudio(program) {
    this.port = await freePort();
    mkdirSync(path.join(this.folder, 'projects'), { recursive: true });
    const settings = path.join(this.folder, 'studio.ini');
    this.#spawn(program, 'studio', ['--settings', settings, '--mcp-port', String(this.port)]);
    await until('the studio', () => listens(this.port));
  }

  #spawn(program, name, args) {
    const own = path.join(this.folder, name);
    const environment = { ...process.env, QT_QPA_PLATFORM: 'offscreen', TMPDIR: path.join(own, 'tmp') };
    for (const kind of ['CONFIG', 'DATA', 'CACHE', 'STATE']) {
      environment[`XDG_${kind}_HOME`] = path.join(own, kind.toLowerCase());
    }
    mkdirSync(environment.TMPDIR, { recursive: true });
    const log = path.join(own, 'log.txt');
    const output = openSync(log, 'w');
    const child = spawn(program, args, { env: environment, stdio: ['ignore', output, output] });
    child.on('exit', (code, signal) => {
      if (this.#children.includes(child)) {
        console.error(`The ${name} ended: ${code ?? signal}\n${readFileSync(log, 'utf8')}`);
        process.exit(1);
      }
    });
    this.#children.push(child);
    return log;
  }
}
